#include "tools/tarnctl/verbs/Invocation.h"

#include "tools/tarnctl/output/Failure.h"

namespace tarnctl {

namespace {

using Call = std::function<Json::Value(TracingManager&)>;

void showTrace(const Context& context, const std::vector<Exchange>& exchanges) {
    if (!context.options.trace) return;
    for (const std::string& line : traceLines(exchanges)) context.diagnostics.requested(line);
}

}  // namespace

int invoke(Context& context, const Call& call) {
    const android::sp<TracingManager> manager(&context.session.manager());
    TimeLimit& limit = context.session.limit();
    const auto result = limit.run<Json::Value>([call, manager] { return call(*manager); });
    const std::vector<Exchange> exchanges = manager->takeExchanges();
    showTrace(context, exchanges);
    if (!result) {
        context.session.abandonManager();
        throw Failure(kUnreachable, limit.exceeded("no answer"));
    }
    const ExitCode outcome = outcomeOf(exchanges);
    // What a method returns without having reached the service says nothing about the board.
    if (outcome != kUnreachable) context.output.result(*result);
    if (outcome != kDone) context.diagnostics.note(reasonOf(exchanges));
    return outcome;
}

}  // namespace tarnctl
