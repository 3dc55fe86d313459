#include <algorithm>
#include <cctype>

#include "tools/tarnctl/cli/FaultWords.h"
#include "tools/tarnctl/cli/Lookup.h"
#include "tools/tarnctl/cli/PropertyNames.h"
#include "tools/tarnctl/cli/Wire.h"
#include "tools/tarnctl/commands/Commands.h"

namespace tarnctl {

namespace {

using Candidates = std::vector<std::string>;

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

/** Controllers with a dot behind, until one is chosen; then what it has. */
Candidates below(const std::string& word, const Candidates& paths) {
    if (word.find('.') != std::string::npos) return paths;
    Candidates names = controllerNames();
    for (std::string& name : names) name += '.';
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

Candidates ofBoard(const std::vector<std::string>& words) {
    if (words.size() == 2) return boardActions();
    if (words[1] != "fault") return {};
    if (words.size() == 3) {
        Candidates names = commandNames();
        append(&names, {"clear", "*"});
        return names;
    }
    return words[2] == "clear" ? commandNames() : faultWords();
}

/** words[0] is the command, the last one what is to be completed. */
Candidates ofCommand(const std::vector<std::string>& words) {
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
        return words.size() % 2 == 1 ? wireTypes() : Candidates();
    }
    if (command == "board") return ofBoard(words);
    return {};
}

Candidates commandNamesOfTarnctl() {
    Candidates names;
    for (const CommandDescription& command : commandTable()) names.push_back(command.name);
    return names;
}

/** The words without options and their values, so that places can be counted. */
std::vector<std::string> withoutOptions(const std::vector<std::string>& words) {
    std::vector<std::string> rest;
    for (size_t i = 0; i + 1 < words.size(); i++) {
        if (words[i].size() > 1 && words[i][0] == '-' &&
            !isdigit(static_cast<unsigned char>(words[i][1]))) {
            for (const OptionDescription& option : optionDescriptions()) {
                const bool takesNext = option.spelling.find(option.name + " ") != std::string::npos;
                if (option.name == words[i] && takesNext) i++;
            }
        } else {
            rest.push_back(words[i]);
        }
    }
    if (!words.empty()) rest.push_back(words.back());
    return rest;
}

Candidates candidatesFor(const std::vector<std::string>& words) {
    // A shell may take "--json=short" apart.
    if (words.size() > 2 && words.end()[-2] == "=" && words.end()[-3] == "--json") {
        return {"short", "pretty"};
    }
    const std::vector<std::string> plain = withoutOptions(words);
    if (plain.size() == 1 && plain[0].compare(0, 1, "-") != 0) return commandNamesOfTarnctl();
    if (plain.back().compare(0, 1, "-") == 0) return options(plain[0]);
    if (plain[0] == "help") return commandNamesOfTarnctl();
    return ofCommand(plain);
}

}  // namespace

std::vector<std::string> completions(const std::vector<std::string>& words) {
    if (words.empty()) return commandNamesOfTarnctl();
    const std::string& word = words.back();
    Candidates fitting;
    for (const std::string& candidate : candidatesFor(words)) {
        if (candidate.compare(0, word.size(), word) == 0) fitting.push_back(candidate);
    }
    fitting.erase(std::unique(fitting.begin(), fitting.end()), fitting.end());
    return fitting;
}

}  // namespace tarnctl
