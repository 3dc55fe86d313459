#include <algorithm>

#include "tools/tarnctl/board/BoardAccess.h"
#include "tools/tarnctl/catalog/PropertyNames.h"
#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/verbs/MethodCall.h"
#include "tools/tarnctl/verbs/Verbs.h"

namespace tarnctl {

namespace {

/** The simulated board if it has a property of that name; else the property is refused. */
BoardControl& requireBoardProperty(Context& context, const std::string& property, Access access) {
    BoardControl* board = context.session.board();
    if (board == nullptr || !hasProperty(*board, property)) refuseProperty(property, access);
    return *board;
}

/** What is read or, where nothing can be read, what is written last. */
std::string typeOf(const NamedProperty& property) {
    if (property.getter != nullptr) return property.getter->result;
    const std::string& type = property.setter->arguments.back().type;
    return type.substr(0, type.find(", "));
}

void listProperties(Context& context) {
    Json::Value list(Json::arrayValue);
    std::vector<std::string> lines;
    size_t width = 0;
    const std::vector<NamedProperty>& properties = namedProperties();
    for (const NamedProperty& property : properties) {
        width = std::max(width, property.name.size());
    }
    for (const NamedProperty& property : properties) {
        const std::string access = std::string(property.getter != nullptr ? "r" : "") +
                                   (property.setter != nullptr ? "w" : "");
        Json::Value entry(Json::objectValue);
        entry["name"] = property.name;
        entry["access"] = access;
        std::string line = property.name + std::string(width - property.name.size() + 2, ' ');
        line += access;
        const std::string type = typeOf(property);
        entry["type"] = type;
        line += std::string(4 - access.size(), ' ') + type;
        list.append(entry);
        lines.push_back(line);
    }
    if (context.output.isJson()) {
        context.output.result(list);
    } else {
        context.output.lines(lines);
    }
}

int runGet(Context& context, const Arguments& arguments) {
    if (arguments.empty()) {
        listProperties(context);
        return kDone;
    }
    const Arguments values(arguments.begin() + 1, arguments.end());
    const Overloads overloads = findAccessors(arguments[0], Access::kGet);
    if (!overloads.methods.empty()) return callMethod(context, overloads, values);
    BoardControl& board = requireBoardProperty(context, arguments[0], Access::kGet);
    requireCount(kGetVerb, arguments, 1, 1);
    context.output.result(readProperty(board, arguments[0]));
    return kDone;
}

int runSet(Context& context, const Arguments& arguments) {
    if (arguments.size() < 2) requireCount(kSetVerb, arguments, 2, 2);
    const Arguments values(arguments.begin() + 1, arguments.end());
    const Overloads overloads = findAccessors(arguments[0], Access::kSet);
    if (!overloads.methods.empty()) return callMethod(context, overloads, values);
    BoardControl& board = requireBoardProperty(context, arguments[0], Access::kSet);
    requireCount(kSetVerb, arguments, 2, 2);
    writeProperty(&board, arguments[0], arguments[1]);
    return kDone;
}

}  // namespace

const Verb kGetVerb = {
        "get", "[CONTROLLER.PROPERTY [INDEX]...]", "read a property, or list them all",
        R"(A property is what a controller's getter gives: audio.volume is audio.getVolume(),
audio.drcEnable or audio.drc is audio.isDrcEnable(). Arguments of the getter follow the
name: get audio.ampMute 1. Behind the dot the case of letters doesn't matter. This works on
every board.

Where no getter has that name and the service is a simulated board, it is the board's own
property of that name, as tarnctl board get gives it.

Without a name: every property, whether it can be read (r) and written (w), and its type.)",
        runGet};

const Verb kSetVerb = {
        "set", "CONTROLLER.PROPERTY [INDEX]... VALUE", "write a property",
        R"(The counterpart of get: set audio.volume 30 is audio.setVolume(30), set audio.drc on is
audio.enableDrc(true), set audio.ampMute 1 0 is audio.setAmpMute(1, 0). Prints the method's
result. Where no setter has that name and the service is a simulated board, it sets the
board's own property, as tarnctl board set does, and prints nothing.)",
        runSet};

}  // namespace tarnctl
