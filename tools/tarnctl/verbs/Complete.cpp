#include <algorithm>
#include <cctype>
#include <chrono>
#include <cstring>

#include "tools/tarnctl/board/BoardAccess.h"
#include "tools/tarnctl/board/FaultWords.h"
#include "tools/tarnctl/catalog/Lookup.h"
#include "tools/tarnctl/catalog/PropertyNames.h"
#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/verbs/Verbs.h"

namespace tarnctl {

namespace {

using Candidates = std::vector<std::string>;

constexpr char kJsonOption[] = "--json=";

void append(Candidates* candidates, const Candidates& more) {
    candidates->insert(candidates->end(), more.begin(), more.end());
}

Candidates options(const std::string& command) {
    Candidates names;
    for (const OptionDescription& option : optionDescriptions()) {
        if (option.command.empty() || option.command == command) names.push_back(option.name);
    }
    return names;
}

/** Controllers with a dot after them, until one is chosen; then what it has, by the name chosen. */
Candidates below(const std::string& word, const Candidates& paths) {
    const size_t dot = word.find('.');
    Candidates names;
    if (dot == std::string::npos) {
        for (const std::string& name : controllerNames()) names.push_back(name + '.');
        return names;
    }
    const std::string chosen = word.substr(0, dot);
    const Controller* controller = findController(chosen);
    if (controller == nullptr) return names;
    for (const std::string& path : paths) {
        const size_t end = path.find('.');
        if (path.compare(0, end, controller->name) == 0) names.push_back(chosen + path.substr(end));
    }
    return names;
}

Candidates properties(Access access) {
    Candidates names;
    for (const NamedProperty& property : namedProperties()) {
        const Method* accessor = access == Access::kGet ? property.getter : property.setter;
        if (accessor != nullptr) names.push_back(property.name);
    }
    return names;
}

/** For the argument of a method at that place. */
Candidates values(const std::vector<const Method*>& methods, size_t place) {
    for (const Method* method : methods) {
        if (place < method->arguments.size() && method->arguments[place].type == "bool") {
            return {"true", "false"};
        }
    }
    return {};
}

std::vector<const Method*> methodsAt(const std::string& path) {
    const size_t dot = path.find('.');
    if (dot == std::string::npos) return {};
    const Controller* controller = findController(path.substr(0, dot));
    if (controller == nullptr) return {};
    return findMethods(*controller, path.substr(dot + 1));
}

std::vector<const Method*> settersAt(const std::string& property) {
    return findAccessors(property, Access::kSet).methods;
}

/** Of the board that is served, or of the one that a command would start. */
Candidates boardProperties(Session& session) try {
    // Nobody waits longer for a candidate.
    session.setLimit(std::chrono::seconds(1));
    const BoardControl* board = session.board();
    return board != nullptr ? propertyNames(*board) : Candidates();
} catch (const Failure&) {
    return {};
}

Candidates ofBoard(Session& session, const std::vector<std::string>& words) {
    if (words.size() == 2) return boardActions();
    const bool takesProperty = words[1] == "get" || words[1] == "set";
    if (takesProperty && words.size() == 3) return boardProperties(session);
    if (words[1] != "fault") return {};
    if (words.size() == 3) {
        Candidates names = commandNames();
        append(&names, {"clear", "*"});
        return names;
    }
    return words[2] == "clear" ? commandNames() : faultWords();
}

/** words[0] is the command, the last one what is to be completed. */
Candidates ofCommand(Session& session, const std::vector<std::string>& words) {
    const std::string& command = words[0];
    const std::string& word = words.back();
    const bool first = words.size() == 2;
    if (command == "call") {
        return first ? below(word, allPaths()) : values(methodsAt(words[1]), words.size() - 3);
    }
    if (command == "get" && first) return below(word, properties(Access::kGet));
    if (command == "set") {
        return first ? below(word, properties(Access::kSet))
                     : values(settersAt(words[1]), words.size() - 3);
    }
    if (command == "list" && first) return controllerNames();
    if (command == "describe" && first) {
        Candidates names = below(word, allPaths());
        append(&names, commandNames());
        return names;
    }
    if (command == "raw") {
        if (first) return commandNames();
        return words.size() % 2 == 1 ? rawTypes() : Candidates();
    }
    if (command == "board") return ofBoard(session, words);
    return {};
}

Candidates commandNamesOfTarnctl() {
    Candidates names;
    for (const Verb& verb : verbs()) names.push_back(verb.name);
    return names;
}

/** A shell may take "--json=short" apart; this puts it together again. */
std::vector<std::string> joinedOptions(const std::vector<std::string>& words) {
    std::vector<std::string> joined;
    for (size_t i = 0; i < words.size(); i++) {
        const bool behindOption = !joined.empty() && joined.back().compare(0, 2, "--") == 0;
        if (words[i] == "=" && behindOption) {
            joined.back() += '=';
            if (i + 1 < words.size()) joined.back() += words[++i];
        } else {
            joined.push_back(words[i]);
        }
    }
    return joined;
}

bool isOption(const std::string& word) {
    return word.size() > 1 && word[0] == '-' && !isdigit(static_cast<unsigned char>(word[1]));
}

/** Whether the word after this one is an option's value. */
bool takesNext(const std::string& word) {
    for (const OptionDescription& option : optionDescriptions()) {
        if (!option.takesNext) continue;
        if (word == option.name || word == option.letter) return true;
    }
    return false;
}

/** The words without options and their values, so that places can be counted. */
std::vector<std::string> withoutOptions(const std::vector<std::string>& words) {
    std::vector<std::string> rest;
    for (size_t i = 0; i + 1 < words.size(); i++) {
        if (!isOption(words[i])) {
            rest.push_back(words[i]);
        } else if (takesNext(words[i])) {
            i++;
        }
    }
    rest.push_back(words.back());
    return rest;
}

Candidates candidatesFor(Session& session, const std::vector<std::string>& words) {
    if (words.size() > 1 && takesNext(words.end()[-2])) return {};
    const std::vector<std::string> plain = withoutOptions(words);
    if (plain.size() == 1 && plain[0].compare(0, 1, "-") != 0) return commandNamesOfTarnctl();
    if (plain.back().compare(0, 1, "-") == 0) return options(plain[0]);
    if (plain[0] == "help") return commandNamesOfTarnctl();
    return ofCommand(session, plain);
}

}  // namespace

std::vector<std::string> completions(Session& session, const std::vector<std::string>& words) {
    if (words.empty()) return commandNamesOfTarnctl();
    const std::vector<std::string> joined = joinedOptions(words);
    const bool styles = joined.back().compare(0, strlen(kJsonOption), kJsonOption) == 0;
    const std::string word = styles ? joined.back().substr(strlen(kJsonOption)) : joined.back();
    Candidates fitting;
    for (const std::string& candidate :
         styles ? Candidates{"short", "pretty"} : candidatesFor(session, joined)) {
        if (candidate.compare(0, word.size(), word) == 0) fitting.push_back(candidate);
    }
    fitting.erase(std::unique(fitting.begin(), fitting.end()), fitting.end());
    return fitting;
}

}  // namespace tarnctl
