#pragma once

#include <array>
#include <condition_variable>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <variant>

#include "BusCall.h"
#include "host/binder/carrier/Carrier.h"

namespace android::host::dbus {

/**
 * What waits for the threads of one domain: calls, and tasks of the carrier's own.
 *
 * One-way calls to one object form a lane: the next comes out when the one ahead is destroyed.
 */
class CallQueue {
  public:
    /** The most that one process may have waiting here. */
    static constexpr size_t kMaxWaitingCalls = 4096;
    static constexpr size_t kMaxWaitingBytes = 64 * 1024 * 1024;

    /** Counts a call against its caller's share; false if that is used up. */
    static bool admit(const BusCall& call);

    /** Puts a call that was admitted in line. */
    void add(std::unique_ptr<BusCall> call);
    void add(Task task);

    /** Waits for the next; none once the queue was stopped. */
    std::optional<PoolWork> take();
    void stop();

    size_t size();

  private:
    friend class BusCall;
    void leaveLane(uint64_t object);
    void makeReady(std::unique_ptr<BusCall> call);

    std::mutex mLock;  // guards what follows
    std::condition_variable mArrived;
    std::deque<std::variant<std::unique_ptr<BusCall>, Task>> mReady;
    // By object: the calls after the one-way call that is ready or being served.
    std::map<uint64_t, std::deque<std::unique_ptr<BusCall>>> mLanes;
    bool mStopped = false;
};

/** A queue for each domain, since a thread of one must not do the other's work. */
class CallQueues {
  public:
    CallQueue& of(Domain domain) { return mQueues[static_cast<size_t>(domain)]; }

    void stop() {
        for (CallQueue& queue : mQueues) queue.stop();
    }

    size_t size() {
        size_t waiting = 0;
        for (CallQueue& queue : mQueues) waiting += queue.size();
        return waiting;
    }

  private:
    std::array<CallQueue, 2> mQueues;
};

}  // namespace android::host::dbus
