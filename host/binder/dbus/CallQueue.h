#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>

#include "Peer.h"
#include "host/binder/carrier/Carrier.h"

namespace android::host::dbus {

class CallQueue;

/** A transaction that came in over the bus. */
class BusCall : public IncomingCall {
  public:
    /** Sends the reply. */
    using Responder = std::function<void(BusCall&, status_t, Payload)>;

    BusCall(sdbus::MethodCall received, std::shared_ptr<Peer> sender, Responder responder);
    ~BusCall() override;

    void answer(status_t status, Payload reply) override;
    /** Leaves the call without an answer: its caller was sent an error. */
    void abandon() { mAnswered = true; }
    bool isOneWay() const { return message.doesntExpectReply(); }

    const sdbus::MethodCall message;
    const std::shared_ptr<Peer> caller;
    uint64_t object = 0;

  private:
    friend class CallQueue;
    const Responder mResponder;
    bool mAnswered = false;
    CallQueue* mQueue = nullptr;  // where it heads a lane
};

/**
 * What waits for the pool's threads: calls, and errands of the carrier's own.
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
    void addErrand(std::function<void()> errand);

    /** Waits for the next; null once the queue was stopped. */
    std::unique_ptr<IncomingCall> take();
    void stop();

    size_t size();

  private:
    friend class BusCall;
    void leaveLane(uint64_t object);
    void makeReady(std::unique_ptr<BusCall> call);

    std::mutex mLock;
    std::condition_variable mArrived;
    std::deque<std::unique_ptr<IncomingCall>> mReady;
    // By object: what waits behind the one-way call that is ready or being served.
    std::map<uint64_t, std::deque<std::unique_ptr<BusCall>>> mLanes;
    bool mStopped = false;
};

}  // namespace android::host::dbus
