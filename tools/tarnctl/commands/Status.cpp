#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include "tools/tarnctl/cli/Failure.h"
#include "tools/tarnctl/cli/LibraryLog.h"
#include "tools/tarnctl/commands/Commands.h"

namespace tarnctl {

namespace {

using vendor::zunt::hwtarn::V1_0::IHwTarn;

std::string placeOf(const BoardLink* board) {
    if (board != nullptr) return "embedded";
    const android::sp<IHwTarn> service = IHwTarn::getService();
    return service != nullptr && service->isRemote() ? "another process" : "this process";
}

int runStatus(Context& context, const Arguments& arguments) {
    requireCount(kStatusCommand, arguments, 0, 0);
    Report report;
    int code = kDone;
    try {
        const BoardLink* board = context.session.board();
        report = {{"service", "ready"}, {"where", placeOf(board)}};
        if (board != nullptr) report.emplace_back("board", board->name());
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

const CommandDescription kStatusCommand = {
        "status", "", "whether the service is ready, and where it runs",
        R"(Prints whether the hardware service is ready; where it runs: embedded (a simulated board
within tarnctl) or in another process; and the library's log level. With --service only a
running service counts: the exit code is 4 if there is none.)",
        runStatus};

}  // namespace tarnctl
