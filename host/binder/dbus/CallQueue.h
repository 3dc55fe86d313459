#pragma once

#include <array>
#include <condition_variable>
#include <deque>
#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include "BusCall.h"
#include "Turns.h"
#include "host/binder/carrier/Carrier.h"

namespace android::host::dbus {

/**
 * What waits for the threads of one domain: calls, and tasks of the carrier's own.
 *
 * The processes that call take turns, one call each. One-way calls to one object form a lane: the
 * next one is served when the one ahead is destroyed.
 */
class CallQueue {
  public:
    /** The most that one process may have waiting here. */
    static constexpr size_t kMaxWaitingCalls = 4096;
    static constexpr size_t kMaxWaitingBytes = 64 * 1024 * 1024;

    /** The most one-way calls of processes that have left the bus, of all of them together. */
    static constexpr size_t kMaxLastCalls = 256;
    static constexpr size_t kMaxLastBytes = 1024 * 1024;

    using Calls = std::vector<std::unique_ptr<BusCall>>;

    /**
     * Counts a call that is to have so many bytes and objects against its caller's share; false if
     * that is used up.
     */
    static bool admit(BusCall& call, size_t bytes, size_t objects);

    /** Ends that for a call that was admitted but is not added. */
    static void dismiss(const BusCall& call);

    /** Puts a call that was admitted in line. */
    void add(std::unique_ptr<BusCall> call);
    void add(Task task);

    /** Waits for the next; none once the queue was stopped. */
    std::optional<PoolWork> take();
    void stop();

    /**
     * A process has left the bus: takes its calls out, which nobody waits for any more, but for a
     * few one-way ones that it sent last. They are to be destroyed without a lock.
     */
    Calls senderLeft(const Peer& sender);

    size_t size();

  private:
    friend class BusCall;

    // One sender's calls in a lane.
    struct Line {
        const Peer* sender;
        std::deque<std::unique_ptr<BusCall>> calls;
        bool hasTicket = false;  // the first one waits for the sender's turn
    };
    // The one-way calls to one object.
    struct Lane {
        std::list<Line>::iterator find(const Peer* sender);

        std::list<Line> lines;  // none is empty; the sender that was served last comes last
        bool busy = false;      // one is being served
    };
    using Lanes = std::map<uint64_t, Lane>;

    // Stands for the first of a sender's calls in a lane; none is served if another one is.
    struct Ticket {
        uint64_t object;
        const Peer* sender;
    };
    using Ready = std::variant<std::unique_ptr<BusCall>, Task, Ticket>;

    // In place of a sender: the carrier itself, and the processes that have left the bus.
    static constexpr const Peer* kOwn = nullptr;

    void leaveLane(uint64_t object);
    void makeReady(const Peer* sender, Ready ready);
    void join(Lanes::value_type& lane, const Peer* sender, std::unique_ptr<BusCall> call);
    void giveTicket(const Lanes::value_type& lane, Line& line);
    std::unique_ptr<BusCall> redeem(const Ticket& ticket);
    void keepLast(Lanes::value_type& lane, const Peer& sender, Calls* dropped);

    std::mutex mLock;  // guards what follows
    std::condition_variable mArrived;
    Turns<const Peer*, Ready> mReady;
    Lanes mLanes;
    size_t mWaiting = 0;
    size_t mLastCalls = 0;
    size_t mLastBytes = 0;
    bool mStopped = false;
};

/** A queue for each domain, since a thread of one must not do the other's work. */
class CallQueues {
  public:
    CallQueue& of(Domain domain) { return mQueues[static_cast<size_t>(domain)]; }

    CallQueue::Calls senderLeft(const Peer& sender) {
        CallQueue::Calls dropped;
        for (CallQueue& queue : mQueues) {
            for (auto& call : queue.senderLeft(sender)) dropped.push_back(std::move(call));
        }
        return dropped;
    }

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
