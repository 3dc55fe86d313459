#include "tools/tarnctl/catalog/Lookup.h"

#include <cctype>

#include "registry/Arguments.h"
#include "tools/tarnctl/catalog/NearNames.h"
#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/output/Format.h"

namespace tarnctl {

using ::tarn::protocol::Command;
using ::tarn::registry::parseInt;

namespace {

constexpr char kCommandPrefix[] = "CMD_";

std::string takesText(const Overloads& overloads) {
    std::vector<std::string> counts;
    for (const Method* method : overloads.methods) {
        counts.push_back(std::to_string(method->arguments.size()));
    }
    return joined(counts, " or ") +
           (counts == std::vector<std::string>{"1"} ? " argument" : " arguments");
}

}  // namespace

const Controller& requireController(const std::string& name) {
    if (const Controller* controller = findController(name)) return *controller;
    std::vector<std::string> names = controllerNames();
    for (const Controller& controller : controllers()) names.push_back(controller.className);
    throw Failure(kNoSuchName, "no controller \"" + name + "\"" + didYouMean(name, names));
}

Overloads requireMethods(const std::string& path) {
    const size_t dot = path.find('.');
    if (dot == std::string::npos) {
        if (const Controller* controller = findController(path)) {
            throw Failure(kBadUsage, path + " is a controller; give one of its methods, as " +
                                             controller->name + ".METHOD");
        }
        throw Failure(kNoSuchName, "no method \"" + path + "\", a method is called " +
                                           "CONTROLLER.METHOD" + suggestPaths(path));
    }
    const Controller& controller = requireController(path.substr(0, dot));
    const std::string name = path.substr(dot + 1);
    const Overloads overloads{&controller, findMethods(controller, name)};
    if (overloads.methods.empty()) {
        std::vector<std::string> names;
        for (const Method& method : controller.methods) names.push_back(method.name);
        throw Failure(kNoSuchName, controller.name + " has no method \"" + name + "\"" +
                                           didYouMean(name, names));
    }
    return overloads;
}

std::string suggestPaths(const std::string& method) {
    std::vector<std::string> names;
    for (const Controller& controller : controllers()) {
        for (const Method& candidate : controller.methods) names.push_back(candidate.name);
    }
    for (const std::string& name : nearNames(method, names)) {
        for (const Controller& controller : controllers()) {
            const auto found = findMethods(controller, name);
            if (!found.empty()) return "; did you mean " + pathOf(controller, *found[0]) + "?";
        }
    }
    return "";
}

const Method& requireOverload(const Overloads& overloads, size_t argumentCount) {
    std::vector<std::string> signatures;
    for (const Method* method : overloads.methods) {
        if (method->arguments.size() == argumentCount) return *method;
        signatures.push_back(signatureOf(*overloads.controller, *method));
    }
    throw Failure(kBadUsage, pathOf(*overloads.controller, *overloads.methods[0]) + " takes " +
                                     takesText(overloads) + ", not " +
                                     std::to_string(argumentCount) + ": " +
                                     joined(signatures, " or "));
}

bool looksLikeCommand(const std::string& text) {
    return text.compare(0, sizeof(kCommandPrefix) - 1, kCommandPrefix) == 0 ||
           (!text.empty() && (isdigit(static_cast<unsigned char>(text[0])) || text[0] == '-'));
}

int32_t requireCode(const std::string& nameOrCode) {
    if (looksLikeCommand(nameOrCode) && nameOrCode[0] != kCommandPrefix[0]) {
        return parseInt("command", nameOrCode);
    }
    return requireCommands(nameOrCode).front()->code;
}

std::vector<const Command*> requireCommands(const std::string& nameOrCode) {
    if (const Command* command = ::tarn::protocol::findCommand(nameOrCode)) return {command};
    if (!looksLikeCommand(nameOrCode) || nameOrCode[0] == kCommandPrefix[0]) {
        throw Failure(kNoSuchName,
                      "no command \"" + nameOrCode + "\"" + didYouMean(nameOrCode, commandNames()));
    }
    const auto rows = ::tarn::protocol::findCommands(parseInt("command", nameOrCode));
    if (rows.empty()) throw Failure(kNoSuchName, "no command has the code " + nameOrCode);
    return rows;
}

std::vector<std::string> methodsOf(const Command& command) {
    std::vector<std::string> paths;
    for (const Controller& controller : controllers()) {
        for (const Method& method : controller.methods) {
            if (method.row == &command) paths.push_back(pathOf(controller, method));
        }
    }
    return paths;
}

std::string pathOf(const Controller& controller, const Method& method) {
    return controller.name + "." + method.name;
}

std::string signatureOf(const Controller& controller, const Method& method) {
    std::vector<std::string> arguments;
    for (const Argument& argument : method.arguments) {
        // Of "int list, separated by commas" the first part says it.
        arguments.push_back(argument.name + ": " +
                            argument.type.substr(0, argument.type.find(", ")));
    }
    return pathOf(controller, method) + "(" + joined(arguments, ", ") + ") -> " + method.result;
}

std::vector<std::string> allPaths() {
    std::vector<std::string> paths;
    for (const Controller& controller : controllers()) {
        for (const Method& method : controller.methods) {
            paths.push_back(pathOf(controller, method));
        }
    }
    return paths;
}

std::vector<std::string> controllerNames() {
    std::vector<std::string> names;
    for (const Controller& controller : controllers()) names.push_back(controller.name);
    return names;
}

std::vector<std::string> commandNames() {
    std::vector<std::string> names;
    for (const Command& command : ::tarn::protocol::commands()) names.push_back(command.name);
    return names;
}

}  // namespace tarnctl
