#pragma once

#include <sdbus-c++/sdbus-c++.h>

#include <functional>
#include <memory>
#include <vector>

#include "Peer.h"
#include "host/binder/carrier/Carrier.h"

namespace android::host::dbus {

class CallQueue;

/**
 * A transaction that came in, over the bus or on a channel. It does not keep the message, which may
 * have files with it: what is needed to answer is made when it comes in.
 */
class BusCall : public IncomingCall {
  public:
    /** Sends the reply. */
    using Responder = std::function<void(BusCall&, status_t, Payload)>;

    BusCall(const sdbus::MethodCall& message, std::shared_ptr<Peer> sender, Responder responder);
    /** One that came on a channel, with its number there; 0 if it is one-way. */
    BusCall(std::shared_ptr<PeerChannel> from, uint64_t number, std::shared_ptr<Peer> sender,
            Responder responder);
    /** Answers with UNKNOWN_ERROR if the caller still waits, and lets the next one-way call follow.
     */
    ~BusCall() override;

    void answer(status_t status, Payload reply) override;
    /** Leaves the call without an answer: its caller was sent an error. */
    void abandon() { mAnswered = true; }
    bool isOneWay() const { return mOneWay; }

    /** The objects of this process that it holds: they must not be destroyed on the link's thread.
     */
    std::vector<sp<IBinder>> localObjects() const;

    const std::shared_ptr<Peer> caller;
    uint64_t object = 0;

    // The channel that it came on, and its number there; null if it came on the bus.
    const std::shared_ptr<PeerChannel> channel;
    const uint64_t channelCall = 0;

    // Of one that came on the bus and is not one-way: the reply, and the error in its place if it
    // cannot be filled.
    sdbus::MethodReply reply;
    sdbus::MethodReply failure;

  private:
    friend class CallQueue;
    const bool mOneWay;
    const Responder mResponder;
    bool mAnswered = false;
    size_t mCost = 0;             // what it counts against its caller's share
    CallQueue* mQueue = nullptr;  // whose lane it is in while it is served
};

}  // namespace android::host::dbus
