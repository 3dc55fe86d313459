#include <algorithm>

#include "tools/tarnctl/catalog/Description.h"
#include "tools/tarnctl/catalog/Lookup.h"
#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/verbs/Verbs.h"

namespace tarnctl {

namespace {

std::string countText(size_t count, const char* what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

void listControllers(Context& context) {
    Json::Value list(Json::arrayValue);
    std::vector<std::string> lines;
    size_t total = 0;
    size_t width = 0;
    for (const Controller& controller : controllers()) {
        width = std::max(width, controller.name.size());
    }
    for (const Controller& controller : controllers()) {
        Json::Value entry(Json::objectValue);
        entry["name"] = controller.name;
        entry["class"] = controller.className;
        entry["methods"] = static_cast<Json::UInt>(controller.methods.size());
        list.append(entry);
        lines.push_back(controller.name + std::string(width - controller.name.size() + 2, ' ') +
                        countText(controller.methods.size(), "method"));
        total += controller.methods.size();
    }
    lines.push_back(countText(controllers().size(), "controller") + ", " +
                    countText(total, "method"));
    if (context.output.isJson()) {
        context.output.result(list);
    } else {
        context.output.lines(lines);
    }
}

void listMethods(Context& context, const Controller& controller) {
    Json::Value list(Json::arrayValue);
    std::vector<std::string> lines;
    for (const Method& method : controller.methods) {
        list.append(describeMethod(controller, method));
        lines.push_back(signatureOf(controller, method));
    }
    if (context.output.isJson()) {
        context.output.result(list);
    } else {
        context.output.lines(lines);
    }
}

int runList(Context& context, const Arguments& arguments) {
    requireCount(kListVerb, arguments, 0, 1);
    if (arguments.empty()) {
        listControllers(context);
    } else {
        listMethods(context, requireController(arguments[0]));
    }
    return kDone;
}

}  // namespace

const Verb kListVerb = {
        "list", "[CONTROLLER]", "the controllers, or the methods of one",
        R"(Without an argument: every controller with the number of its methods, and the totals.
With a controller (audio, or AudioCtrl): its methods with arguments and result.)",
        runList};

}  // namespace tarnctl
