#include <algorithm>
#include <cctype>

#include "registry/Arguments.h"
#include "tools/tarnctl/board/BoardAccess.h"
#include "tools/tarnctl/board/FaultWords.h"
#include "tools/tarnctl/catalog/Lookup.h"
#include "tools/tarnctl/catalog/NearNames.h"
#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/output/Format.h"
#include "tools/tarnctl/verbs/Verbs.h"

namespace tarnctl {

using ::tarn::registry::BadArgument;
using ::tarn::registry::parseBytes;
using ::tarn::registry::parseUnsigned;

namespace {

constexpr char kAllCommands[] = "*";

void listProperties(Context& context, BoardControl& board, const Arguments&) {
    const Json::Value properties = board.listProperties();
    if (context.output.isJson()) return context.output.result(properties);
    size_t width = 0;
    for (const std::string& name : properties.getMemberNames()) {
        width = std::max(width, name.size());
    }
    std::vector<std::string> lines;
    for (const std::string& name : properties.getMemberNames()) {
        Json::Value value(Json::objectValue);
        value[name] = properties[name]["value"];
        const std::vector<std::string> text = plainLines(value);
        // "name: value" with the values below each other; lists keep their own lines.
        lines.push_back(name + std::string(width - name.size() + 2, ' ') +
                        (text[0].size() > name.size() + 2 ? text[0].substr(name.size() + 2) : ""));
        lines.insert(lines.end(), text.begin() + 1, text.end());
    }
    context.output.lines(lines);
}

void getProperty(Context& context, BoardControl& board, const Arguments& arguments) {
    context.output.result(readProperty(board, arguments[0]));
}

void setProperty(Context&, BoardControl& board, const Arguments& arguments) {
    writeProperty(&board, arguments[0], arguments[1]);
}

void reset(Context&, BoardControl& board, const Arguments&) {
    board.reset();
}

/** An event of a command's has the command's code. */
uint32_t eventType(const std::string& word) {
    const bool isName = looksLikeCommand(word) && isalpha(static_cast<unsigned char>(word[0])) != 0;
    return isName ? static_cast<uint32_t>(requireCode(word)) : parseUnsigned("type", word);
}

void raise(Context&, BoardControl& board, const Arguments& arguments) {
    std::vector<uint8_t> data;
    for (size_t i = 1; i < arguments.size(); i++) {
        const std::vector<uint8_t> bytes = parseBytes("data", arguments[i]);
        data.insert(data.end(), bytes.begin(), bytes.end());
    }
    board.raiseEvent(eventType(arguments[0]), data);
}

void showLog(Context& context, BoardControl& board, const Arguments&) {
    context.output.result(board.postedEvents());
}

std::string faultCommand(const std::string& word) {
    if (word == kAllCommands) return word;
    return requireCommands(word).front()->name;
}

/** Without arguments the list, "clear" switches off, else a fault is switched on. */
void fault(Context& context, BoardControl& board, const Arguments& arguments) {
    if (arguments.empty()) {
        context.output.result(board.listFaults());
    } else if (arguments[0] == "clear") {
        if (arguments.size() > 2) throw Failure(kBadUsage, "usage: board fault clear [COMMAND]");
        if (arguments.size() == 1) return board.clearFaults();
        board.clearFault(faultCommand(arguments[1]));
    } else {
        board.setFault(faultCommand(arguments[0]),
                       parseFault(Arguments(arguments.begin() + 1, arguments.end())));
    }
}

constexpr size_t kAnyNumber = SIZE_MAX;

struct Action {
    const char* name;
    const char* arguments;
    size_t least;
    size_t most;
    void (*run)(Context&, BoardControl&, const Arguments&);
};

constexpr Action kActions[] = {
        {"list", "", 0, 0, listProperties},
        {"get", "PROPERTY", 1, 1, getProperty},
        {"set", "PROPERTY VALUE", 2, 2, setProperty},
        {"reset", "", 0, 0, reset},
        {"raise", "TYPE [HEX]...", 1, kAnyNumber, raise},
        {"fault", "[COMMAND FAULT | clear [COMMAND]]", 0, kAnyNumber, fault},
        {"log", "", 0, 0, showLog},
};

const Action& requireAction(const std::string& name) {
    for (const Action& action : kActions) {
        if (name == action.name) return action;
    }
    throw Failure(kBadUsage, "board can't \"" + name + "\"" + didYouMean(name, boardActions()));
}

int runBoard(Context& context, const Arguments& arguments) {
    if (arguments.empty()) requireCount(kBoardVerb, arguments, 1, 1);
    const Action& action = requireAction(arguments[0]);
    const Arguments rest(arguments.begin() + 1, arguments.end());
    if (rest.size() < action.least || rest.size() > action.most) {
        throw Failure(kBadUsage, std::string("too ") +
                                         (rest.size() < action.least ? "few" : "many") +
                                         " arguments; usage: tarnctl board " + action.name +
                                         (*action.arguments != '\0' ? " " : "") + action.arguments);
    }
    BoardControl* board = context.session.board();
    if (board == nullptr) {
        throw Failure(kUnreachable,
                      "the service is not a simulated board that tarnctl can control");
    }
    reachBoard([&] { action.run(context, *board, rest); });
    return kDone;
}

}  // namespace

std::vector<std::string> boardActions() {
    std::vector<std::string> names;
    for (const Action& action : kActions) names.push_back(action.name);
    return names;
}

const Verb kBoardVerb = {"board", "ACTION [ARGUMENT]...", "control a simulated board",
                         R"(  board list                  every property of the board with its value
  board get PROPERTY          one; of an indexed one name[index] is an element
  board set PROPERTY VALUE    change it past the library; raises no event
  board reset                 state and faults as the board's files describe them
  board raise TYPE [HEX]...   raise an event with these bytes; TYPE is a number, or the command
                              whose code the event has
  board fault                 the faults that are switched on
  board fault COMMAND FAULT   switch one on for a command, its code, or '*' for all:
      status N                answer with that status
      dead | error            fail in the transport
      empty | bytes N         cut the reply
      delay MILLISECONDS      answer late
    then, if not for every call, either every N or probability P [seed S]
  board fault clear [COMMAND] switch them off
  board log                   the events that applications posted

It is the board that tarn-board serves, if it does. A board within tarnctl lives as long as
tarnctl: put such commands into a batch.)",
                         runBoard};

}  // namespace tarnctl
