#include "tools/tarnctl/options/Options.h"

#include <cctype>
#include <cstdlib>

#include "registry/Arguments.h"
#include "registry/Registry.h"
#include "tools/tarnctl/output/Failure.h"

namespace tarnctl {

using ::tarn::registry::BadArgument;
using ::tarn::registry::parseInt;

namespace {

constexpr double kLongestTimeoutSeconds = 1e6;

void setJson(Options* options, const std::string& style) {
    if (style == "pretty") {
        options->json = JsonStyle::kPretty;
    } else if (style.empty() || style == "short") {
        options->json = JsonStyle::kShort;
    } else {
        throw Failure(kBadUsage, "--json: \"" + style + "\" is neither short nor pretty");
    }
}

void setTimeout(Options* options, const std::string& text) {
    char* end = nullptr;
    const double seconds = strtod(text.c_str(), &end);
    const bool number = !text.empty() && isdigit(static_cast<unsigned char>(text.back())) &&
                        end == text.c_str() + text.size();
    if (!number || !(seconds >= 0.001 && seconds <= kLongestTimeoutSeconds)) {
        throw Failure(kBadUsage, "--timeout: \"" + text +
                                         "\" can't be used; accepted: seconds from 0.001 to "
                                         "1000000, such as 2.5");
    }
    options->timeout = std::chrono::milliseconds(static_cast<int64_t>(seconds * 1000));
}

/** An empty one comes from a variable that isn't set, and would stand for none. */
const std::string& requireFile(const std::string& option, const std::string& file) {
    if (file.empty()) throw Failure(kBadUsage, option + " needs a file: " + option + " FILE");
    return file;
}

void setCount(Options* options, const std::string& text) {
    int32_t count = 0;
    try {
        count = parseInt("--count", text);
    } catch (const BadArgument&) {
        // What it accepts is more than can be counted to.
    }
    if (count < 1) {
        throw Failure(kBadUsage, "--count: \"" + text +
                                         "\" can't be used; accepted: a number from 1 to "
                                         "2147483647");
    }
    options->count = count;
}

enum class Takes { kNothing, kMaybe, kValue };

struct OptionRow {
    const char* name;
    char letter;
    Takes takes;
    const char* placeholder;
    const char* command;   // the only command that has it, or null
    bool wholeInvocation;  // can't be given on a line of a batch, since all lines share what it
                           // sets
    void (*apply)(Options*, const std::string& value);
    const char* help;
};

constexpr OptionRow kRows[] = {
        {"--json", 0, Takes::kMaybe, "short|pretty", nullptr, false, setJson,
         "results as JSON; without a style, short"},
        {"", 'j', Takes::kNothing, "", nullptr, false, setJson, "the same as --json=short"},
        {"--quiet", 'q', Takes::kNothing, "", nullptr, false,
         [](Options* options, const std::string&) { options->quiet = true; },
         "say nothing on standard error, not even why it failed"},
        {"--verbose", 'v', Takes::kNothing, "", nullptr, true,
         [](Options* options, const std::string&) { options->verbose = true; },
         "the library's log on standard error, from DEBUG up"},
        {"--timeout", 0, Takes::kValue, "SECONDS", nullptr, false, setTimeout,
         "give up on the service after that time, with exit code 4; ends monitor"},
        {"--board", 0, Takes::kValue, "FILE", nullptr, true,
         [](Options* options, const std::string& file) {
             options->boardFile = requireFile("--board", file);
         },
         "start a simulated board from this file and use it"},
        {"--override", 0, Takes::kValue, "FILE", nullptr, true,
         [](Options* options, const std::string& file) {
             options->overrideFile = requireFile("--override", file);
         },
         "replace parts of the simulated board's description"},
        {"--service", 0, Takes::kNothing, "", nullptr, true,
         [](Options* options, const std::string&) { options->serviceOnly = true; },
         "use a running service only, never start a simulated board"},
        {"--embedded", 0, Takes::kNothing, "", nullptr, true,
         [](Options* options, const std::string&) { options->embeddedOnly = true; },
         "start a simulated board, even where a service runs"},
        {"--trace", 0, Takes::kNothing, "", nullptr, false,
         [](Options* options, const std::string&) { options->trace = true; },
         "requests and replies as hexadecimal words on standard error"},
        {"--keep-going", 'k', Takes::kNothing, "", "batch", true,
         [](Options* options, const std::string&) { options->keepGoing = true; },
         "go on after a line that failed"},
        {"--count", 'n', Takes::kValue, "N", "monitor", false, setCount, "end after N events"},
        {"--reconnect", 0, Takes::kNothing, "", "monitor", true,
         [](Options* options, const std::string&) { options->reconnect = true; },
         "go on when the service dies, and again once it is back"},
        {"--version", 0, Takes::kNothing, "", nullptr, false,
         [](Options* options, const std::string&) { options->version = true; },
         "print the version"},
        {"--help", 'h', Takes::kNothing, "", nullptr, false,
         [](Options* options, const std::string&) { options->help = true; },
         "print help, for a command too"},
};

std::string nameOf(const OptionRow& row) {
    return *row.name != '\0' ? row.name : std::string("-") + row.letter;
}

std::string spellingOf(const OptionRow& row) {
    std::string text;
    if (row.letter != 0) text = std::string("-") + row.letter;
    if (*row.name != '\0') text += (text.empty() ? "" : ", ") + std::string(row.name);
    if (row.takes == Takes::kMaybe) text += std::string("[=") + row.placeholder + "]";
    if (row.takes == Takes::kValue) text += std::string(" ") + row.placeholder;
    return text;
}

/** Whether a word is to be read as an option: -5, -.5 and a lone - are arguments. */
bool isOption(const std::string& word) {
    if (word.size() < 2 || word[0] != '-') return false;
    return !isdigit(static_cast<unsigned char>(word[1])) && word[1] != '.';
}

class Parser {
  public:
    Parser(const std::vector<std::string>& arguments, const Options& defaults, bool inBatch)
        : mArguments(arguments), mInBatch(inBatch) {
        mLine.options = defaults;
    }

    CommandLine parse() {
        for (; mNext < mArguments.size(); mNext++) {
            const std::string& word = mArguments[mNext];
            if (word == "--") {
                mLine.words.insert(mLine.words.end(), mArguments.begin() + mNext + 1,
                                   mArguments.end());
                break;
            }
            if (!isOption(word)) {
                mLine.words.push_back(word);
            } else if (word[1] == '-') {
                readLong(word);
            } else {
                readLetters(word);
            }
        }
        checkCommands();
        return std::move(mLine);
    }

  private:
    void readLong(const std::string& word) {
        const size_t equals = word.find('=');
        const std::string name = word.substr(0, equals);
        for (const OptionRow& row : kRows) {
            if (name != row.name) continue;
            if (equals == std::string::npos) return take(row);
            if (row.takes == Takes::kNothing) {
                throw Failure(kBadUsage, name + " takes no value");
            }
            return apply(row, word.substr(equals + 1));
        }
        refuse(name);
    }

    void readLetters(const std::string& word) {
        for (size_t i = 1; i < word.size(); i++) {
            const OptionRow* row = findLetter(word[i]);
            if (row == nullptr) refuse(word);
            if (row->takes == Takes::kValue && i + 1 < word.size()) {
                return apply(*row, word.substr(i + 1));
            }
            take(*row);
        }
    }

    static const OptionRow* findLetter(char letter) {
        for (const OptionRow& row : kRows) {
            if (letter == row.letter) return &row;
        }
        return nullptr;
    }

    void take(const OptionRow& row) {
        if (row.takes != Takes::kValue) return apply(row, "");
        if (mNext + 1 == mArguments.size()) {
            throw Failure(kBadUsage, nameOf(row) + " needs a value: " + spellingOf(row));
        }
        apply(row, mArguments[++mNext]);
    }

    void apply(const OptionRow& row, const std::string& value) {
        if (mInBatch && row.wholeInvocation) {
            throw Failure(kBadUsage, nameOf(row) + " can't be given on a line of a batch");
        }
        row.apply(&mLine.options, value);
        mSeen.push_back(&row);
    }

    void checkCommands() const {
        const std::string command = mLine.words.empty() ? "" : mLine.words[0];
        for (const OptionRow* row : mSeen) {
            if (row->command != nullptr && command != row->command) {
                throw Failure(kBadUsage, nameOf(*row) + " is an option of " + row->command);
            }
        }
        if (mLine.options.serviceOnly && mLine.options.wantsOwnBoard()) {
            throw Failure(kBadUsage, "--service and a simulated board can't be combined");
        }
    }

    [[noreturn]] static void refuse(const std::string& word) {
        throw Failure(kBadUsage,
                      "no option " + word + "; put -- before arguments that begin with a dash");
    }

    const std::vector<std::string>& mArguments;
    const bool mInBatch;
    size_t mNext = 0;
    CommandLine mLine;
    std::vector<const OptionRow*> mSeen;
};

}  // namespace

CommandLine parseCommandLine(const std::vector<std::string>& arguments) {
    return Parser(arguments, Options(), false).parse();
}

bool asksForQuiet(const std::vector<std::string>& arguments) {
    for (const std::string& word : arguments) {
        if (word == "--") return false;
        const bool letters = isOption(word) && word[1] != '-';
        if (word == "--quiet" || (letters && word.find('q') != std::string::npos)) return true;
    }
    return false;
}

CommandLine parseBatchLine(const std::vector<std::string>& arguments, const Options& batch) {
    return Parser(arguments, batch, true).parse();
}

const std::vector<OptionDescription>& optionDescriptions() {
    static const auto* descriptions = [] {
        auto* list = new std::vector<OptionDescription>;
        for (const OptionRow& row : kRows) {
            list->push_back(OptionDescription{
                    nameOf(row), row.letter != 0 ? std::string("-") + row.letter : "",
                    spellingOf(row), row.command != nullptr ? row.command : "", row.help,
                    row.takes == Takes::kValue});
        }
        return list;
    }();
    return *descriptions;
}

}  // namespace tarnctl
