#include "tools/tarnctl/catalog/Description.h"

#include "tools/tarnctl/catalog/Lookup.h"
#include "tools/tarnctl/output/Format.h"

namespace tarnctl {

using ::tarn::protocol::Command;

namespace {

std::string requestText(const Command& command) {
    return *command.request != '\0' ? command.request : "no arguments";
}

std::string replyText(const Command& command) {
    return *command.reply != '\0' ? std::string("status, ") + command.reply : "status";
}

Json::Value layouts(const Command& command) {
    Json::Value json(Json::objectValue);
    json["command"] = command.name;
    json["code"] = command.code;
    json["request"] = command.request;
    json["reply"] = command.reply;
    return json;
}

std::string controllerOf(const Command& command) {
    const Controller* controller = findController(command.controller);
    return controller != nullptr ? controller->name : command.controller;
}

}  // namespace

Json::Value describeMethod(const Controller& controller, const Method& method) {
    Json::Value json(Json::objectValue);
    json["method"] = pathOf(controller, method);
    json["arguments"] = Json::Value(Json::arrayValue);
    for (const Argument& argument : method.arguments) {
        Json::Value entry(Json::objectValue);
        entry["name"] = argument.name;
        entry["type"] = argument.type;
        json["arguments"].append(entry);
    }
    json["result"] = method.result;
    json["commands"] = Json::Value(Json::arrayValue);
    if (method.row != nullptr) json["commands"].append(layouts(*method.row));
    return json;
}

std::vector<std::string> methodLines(const Controller& controller, const Method& method) {
    std::vector<std::string> lines{signatureOf(controller, method)};
    for (const Argument& argument : method.arguments) {
        // Said in full only where the signature leaves something out.
        if (argument.type.find(", ") != std::string::npos) {
            lines.push_back("  " + argument.name + ": " + argument.type);
        }
    }
    if (const Command* command = method.row) {
        lines.push_back(std::string("  command  ") + command->name + " " + hexCode(command->code));
        lines.push_back("  request  " + requestText(*command));
        lines.push_back("  reply    " + replyText(*command));
    } else {
        lines.push_back("  command  none of its own");
    }
    return lines;
}

Json::Value describeCommand(const Command& command) {
    Json::Value json = layouts(command);
    json["controller"] = controllerOf(command);
    json["methods"] = Json::Value(Json::arrayValue);
    for (const std::string& path : methodsOf(command)) json["methods"].append(path);
    return json;
}

std::vector<std::string> commandLines(const Command& command) {
    const std::vector<std::string> methods = methodsOf(command);
    return {
            std::string(command.name) + " " + hexCode(command.code),
            "  controller  " + controllerOf(command),
            "  request     " + requestText(command),
            "  reply       " + replyText(command),
            "  sent by     " + (methods.empty() ? "no method" : joined(methods, ", ")),
    };
}

}  // namespace tarnctl
