#include <optional>

#include "tools/tarnctl/board/BoardAccess.h"
#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/session/LibraryLog.h"
#include "tools/tarnctl/verbs/Verbs.h"

namespace tarnctl {

namespace {

/** The simulated board's name; nothing if there is none, or if its control fails, which is said. */
std::optional<std::string> boardName(Context& context) try {
    const BoardControl* board = context.session.board();
    if (board == nullptr) return std::nullopt;
    std::string name;
    reachBoard([&] { name = board->name(); });
    return name;
} catch (const Failure& failure) {
    context.diagnostics.note(failure.what());
    return std::nullopt;
}

Report describeService(Context& context) {
    const pid_t process = context.session.servingProcess();
    const std::optional<std::string> board = boardName(context);
    Report report = {{"service", "ready"}};
    if (process != 0) {
        report.emplace_back("where", "another process");
        if (process > 0) report.emplace_back("process", process);
    } else {
        report.emplace_back("where", board ? "embedded" : "this process");
    }
    if (board) report.emplace_back("board", *board);
    return report;
}

int runStatus(Context& context, const Arguments& arguments) {
    requireCount(kStatusVerb, arguments, 0, 0);
    Report report;
    int code = kDone;
    try {
        report = describeService(context);
    } catch (const Failure& failure) {
        if (failure.code() != kUnreachable) throw;
        report = {{"service", "not ready"}};
        context.diagnostics.note(failure.what());
        code = kUnreachable;
    }
    report.emplace_back("logLevel", libraryLogLevel());
    context.output.report(report);
    return code;
}

}  // namespace

const Verb kStatusVerb = {
        "status", "", "whether the service is ready, and where it runs",
        R"(Prints whether the hardware service is ready; where it runs: embedded (a simulated board
within tarnctl) or in another process, and in which; the name of a simulated board; and the
library's log level. A board whose control can't be reached has no name. With --service
only a running service counts: the exit code is 4 if there is none.)",
        runStatus};

}  // namespace tarnctl
