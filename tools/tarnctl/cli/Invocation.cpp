#include "tools/tarnctl/cli/Invocation.h"

#include <chrono>
#include <cstdio>
#include <future>
#include <thread>
#include <utility>

#include "tools/tarnctl/cli/Failure.h"

namespace tarnctl {

namespace {

using Call = std::function<Json::Value(TracingManager&)>;

void showTrace(const Context& context, const std::vector<Exchange>& exchanges) {
    if (!context.options.trace) return;
    for (const std::string& line : traceLines(exchanges)) context.diagnostics.requested(line);
}

std::string secondsText(std::chrono::milliseconds time) {
    char text[32];
    snprintf(text, sizeof(text), "%g", static_cast<double>(time.count()) / 1000);
    return text;
}

/** On a thread of its own, which is left behind if it does not come back. */
Json::Value callWithin(std::chrono::milliseconds limit, Context& context,
                       const android::sp<TracingManager>& manager, const Call& call) {
    std::packaged_task<Json::Value()> task([call, manager] { return call(*manager); });
    std::future<Json::Value> result = task.get_future();
    std::thread(std::move(task)).detach();
    if (result.wait_for(limit) != std::future_status::ready) {
        showTrace(context, manager->takeExchanges());
        context.session.abandonManager();
        throw Failure(kUnreachable, "no answer within " + secondsText(limit) + " s");
    }
    return result.get();
}

}  // namespace

int invoke(Context& context, const Call& call) {
    const android::sp<TracingManager> manager(&context.session.manager());
    const Json::Value result =
            context.options.timeout ? callWithin(*context.options.timeout, context, manager, call)
                                    : call(*manager);
    const std::vector<Exchange> exchanges = manager->takeExchanges();
    showTrace(context, exchanges);
    const ExitCode outcome = outcomeOf(exchanges);
    // What a method returns without having reached the service says nothing about the board.
    if (outcome != kUnreachable) context.output.result(result);
    if (outcome != kDone) context.diagnostics.note(reasonOf(exchanges));
    return outcome;
}

}  // namespace tarnctl
