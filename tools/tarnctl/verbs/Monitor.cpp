#include <chrono>
#include <optional>

#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/output/Format.h"
#include "tools/tarnctl/verbs/Verbs.h"
#include "values/Hex.h"

namespace tarnctl {

namespace {

using Clock = std::chrono::steady_clock;

void print(Context& context, const BoardEvent& event) {
    if (context.output.isJson()) {
        Json::Value json(Json::objectValue);
        json["type"] = event.type;
        json["size"] = static_cast<Json::UInt>(event.data.size());
        json["data"] = ::tarn::values::hexWords(event.data);
        if (event.leftOut > 0) json["leftOut"] = Json::UInt64{event.leftOut};
        context.output.result(json);
    } else {
        const std::string data =
                event.data.empty() ? "" : " " + ::tarn::values::hexWords(event.data);
        context.output.lines({"event " + hexCode(event.type) + " size " +
                              std::to_string(event.data.size()) + data});
    }
}

/** The time that is left, rounded up; nothing without a limit. */
std::optional<std::chrono::milliseconds> remaining(
        const std::optional<Clock::time_point>& deadline) {
    if (!deadline) return std::nullopt;
    return std::chrono::ceil<std::chrono::milliseconds>(
            std::max(*deadline - Clock::now(), Clock::duration::zero()));
}

/** Says what became of the service since it was last said, of which told keeps count. */
void tellChanges(Context& context, const EventCollector& events, int* told) {
    for (const int changes = events.changes(); *told < changes; ++*told) {
        const bool gone = *told % 2 == 0;
        context.diagnostics.note(gone ? "the service is gone; waiting for it"
                                      : "the service is back");
    }
}

/** Says at a monitor's end, whatever ends it, how many events are missing among the printed. */
class LeftOut {
  public:
    explicit LeftOut(const Diagnostics& diagnostics) : mDiagnostics(diagnostics) {}
    LeftOut(const LeftOut&) = delete;
    LeftOut& operator=(const LeftOut&) = delete;
    ~LeftOut() {
        if (mCount == 0) return;
        mDiagnostics.note(std::to_string(mCount) +
                          (mCount == 1 ? " event was left out: " : " events were left out: ") +
                          "more than " + std::to_string(EventCollector::kMostEvents) + " waited");
    }

    void add(uint64_t count) { mCount += count; }

  private:
    const Diagnostics& mDiagnostics;
    uint64_t mCount = 0;
};

int watch(Context& context, EventCollector& events, const EndSignals& signals) {
    LeftOut leftOut(context.diagnostics);
    std::optional<Clock::time_point> deadline;
    if (context.options.timeout) deadline = Clock::now() + *context.options.timeout;
    int32_t seen = 0;
    int told = 0;
    while (signals.received() == 0) {
        if (const std::optional<BoardEvent> event = events.next()) {
            leftOut.add(event->leftOut);
            print(context, *event);
            if (++seen == context.options.count) return kDone;
            continue;
        }
        tellChanges(context, events, &told);
        if (events.serviceDied()) throw Failure(kUnreachable, "the service died");
        if (deadline && Clock::now() >= *deadline) {
            if (!context.options.count) return kDone;
            throw Failure(kUnreachable, "only " + std::to_string(seen) + " of " +
                                                std::to_string(*context.options.count) +
                                                " events came in time");
        }
        events.wakeup().wait(remaining(deadline));
    }
    if (!context.inBatch && !context.options.count) return kDone;
    context.diagnostics.note("interrupted");
    return kInterrupted + signals.received();
}

int runMonitor(Context& context, const Arguments& arguments) {
    requireCount(kMonitorVerb, arguments, 0, 0);
    EventCollector& events = context.session.events();
    const EndSignals signals(events.wakeup());
    context.diagnostics.note("waiting for events");
    return watch(context, events, signals);
}

}  // namespace

const Verb kMonitorVerb = {
        "monitor", "[--count N] [--reconnect]", "print events as they come",
        R"(Prints an event a line: its type, the number of its bytes as a listener gets them, which
is filled up to whole words, and the words; with --json an object a line. Of events that
nobody takes the latest 10000 are kept: how many were left out is said at the end, and with
--json it stands as leftOut in the event that follows them.

Ends on SIGINT and SIGTERM, after --count events, or after --timeout seconds. With --count
fewer events are an error: the exit code is 4 when the time is over, 130 on SIGINT and 143 on
SIGTERM. Within a batch a signal ends the batch, with these codes.

When the service dies the monitor ends with 4. With --reconnect it says so and waits; once the
service is back, restarted, it says that too and goes on. Events of the time between are lost.

Within a batch, events are collected from the first command that talks to the service.)",
        runMonitor};

}  // namespace tarnctl
