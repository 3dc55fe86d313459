#pragma once

#include <sys/types.h>
#include <utils/StrongPointer.h>

#include <chrono>
#include <memory>
#include <optional>

#include "tools/tarnctl/board/Boards.h"
#include "tools/tarnctl/options/Options.h"
#include "tools/tarnctl/output/Console.h"
#include "tools/tarnctl/session/EventCollector.h"
#include "tools/tarnctl/session/TimeLimit.h"
#include "tools/tarnctl/session/TracingManager.h"

namespace tarnctl {

/**
 * The service that a run of tarnctl works with: the one that it finds, or a simulated board that it
 * starts. Found or started when it is first needed.
 */
class Session {
  public:
    /** collectEvents: from the moment when the service is found, not when they are first asked for.
     */
    Session(const Options& options, const Diagnostics& diagnostics, bool collectEvents)
        : mOptions(options), mDiagnostics(diagnostics), mCollectEvents(collectEvents) {}

    /** From now on waits are a new command's: limit for all of them together, the search included.
     */
    void setLimit(std::optional<std::chrono::milliseconds> limit) { mLimit = TimeLimit(limit); }
    TimeLimit& limit() { return mLimit; }

    /** Lives as long as the process. Throws Failure(kUnreachable). */
    TracingManager& manager();

    /** Leaves the manager to a call that doesn't come back; the next one is new. */
    void abandonManager() { mManager = nullptr; }

    /** The simulated board that is the service, in this process or another, or null. */
    BoardControl* board();

    /** The process that serves; 0 if it is this one, -1 if it does not tell. */
    pid_t servingProcess();

    /** Throws Failure(kUnreachable). */
    EventCollector& events();

  private:
    void connect();
    void startBoard();
    [[noreturn]] void refuseWithoutAnswer();

    const Options mOptions;
    const Diagnostics mDiagnostics;
    const bool mCollectEvents;
    TimeLimit mLimit;
    bool mConnected = false;
    bool mBoardSought = false;
    std::shared_ptr<BoardControl> mBoard;
    android::sp<TracingManager> mManager;
    android::sp<EventCollector> mEvents;
};

}  // namespace tarnctl
