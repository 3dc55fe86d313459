#pragma once

#include <sdbus-c++/sdbus-c++.h>

#include <functional>
#include <memory>

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
    /** Answers with UNKNOWN_ERROR if the caller still waits, and lets the next one-way call follow.
     */
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

}  // namespace android::host::dbus
