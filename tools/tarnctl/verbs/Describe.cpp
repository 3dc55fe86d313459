#include "tools/tarnctl/catalog/Description.h"
#include "tools/tarnctl/catalog/Lookup.h"
#include "tools/tarnctl/catalog/NearNames.h"
#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/verbs/Verbs.h"

namespace tarnctl {

namespace {

/** Descriptions one below the other, with an empty line between. */
class Descriptions {
  public:
    void add(const Json::Value& json, const std::vector<std::string>& lines) {
        mJson.append(json);
        if (!mLines.empty()) mLines.emplace_back();
        mLines.insert(mLines.end(), lines.begin(), lines.end());
    }

    void print(Output* output) const {
        if (output->isJson()) {
            output->result(mJson);
        } else {
            output->lines(mLines);
        }
    }

  private:
    Json::Value mJson{Json::arrayValue};
    std::vector<std::string> mLines;
};

[[noreturn]] void refuse(const std::string& name) {
    std::vector<std::string> names = controllerNames();
    for (const Controller& controller : controllers()) names.push_back(controller.className);
    for (const std::string& command : commandNames()) names.push_back(command);
    const std::string suggestion = didYouMean(name, names);
    throw Failure(kNoSuchName, "no controller, method or command \"" + name + "\"" +
                                       (suggestion.empty() ? suggestPaths(name) : suggestion));
}

int runDescribe(Context& context, const Arguments& arguments) {
    requireCount(kDescribeVerb, arguments, 1, 1);
    const std::string& name = arguments[0];
    Descriptions descriptions;
    if (looksLikeCommand(name)) {
        for (const auto* command : requireCommands(name)) {
            descriptions.add(describeCommand(*command), commandLines(*command));
        }
    } else if (const Controller* controller = findController(name)) {
        for (const Method& method : controller->methods) {
            descriptions.add(describeMethod(*controller, method), methodLines(*controller, method));
        }
    } else {
        if (name.find('.') == std::string::npos) refuse(name);
        const Overloads overloads = requireMethods(name);
        for (const Method* method : overloads.methods) {
            descriptions.add(describeMethod(*overloads.controller, *method),
                             methodLines(*overloads.controller, *method));
        }
    }
    descriptions.print(&context.output);
    return kDone;
}

}  // namespace

const Verb kDescribeVerb = {
        "describe", "NAME", "a method or a command: arguments, code, layouts",
        R"(NAME is a method (audio.setVolume), a controller (audio: all its methods), a command
(CMD_AUDIO_SET_VOLUME) or its code (0x1402, 5122). Layouts use the types of raw; [...] is a
count and so many records. Every request begins with the code, every reply with the status.)",
        runDescribe};

}  // namespace tarnctl
