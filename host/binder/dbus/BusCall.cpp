#include "BusCall.h"

#include <utility>

#include "CallQueue.h"
#include "MessageFormat.h"

namespace android::host::dbus {

BusCall::BusCall(const sdbus::MethodCall& message, std::shared_ptr<Peer> sender,
                 Responder responder)
    : caller(std::move(sender)),
      mOneWay(message.doesntExpectReply()),
      mResponder(std::move(responder)) {
    if (mOneWay) return;
    reply = message.createReply();
    failure = message.createErrorReply(sdbus::Error(kUnanswered, "The reply cannot be sent"));
}

BusCall::BusCall(std::shared_ptr<PeerChannel> from, uint64_t number, std::shared_ptr<Peer> sender,
                 Responder responder)
    : caller(std::move(sender)),
      channel(std::move(from)),
      channelCall(number),
      mOneWay(number == 0),
      mResponder(std::move(responder)) {}

BusCall::~BusCall() {
    if (!mAnswered && !isOneWay()) mResponder(*this, UNKNOWN_ERROR, Payload());
    if (mQueue != nullptr) mQueue->leaveLane(object);
}

void BusCall::answer(status_t status, Payload payload) {
    mAnswered = true;
    mResponder(*this, status, std::move(payload));
}

std::vector<sp<IBinder>> BusCall::localObjects() const {
    std::vector<sp<IBinder>> objects;
    if (target != nullptr) objects.push_back(target);
    for (const Payload::Object& each : request.objects) {
        if (each.binder->localBinder() != nullptr) objects.push_back(each.binder);
    }
    return objects;
}

}  // namespace android::host::dbus
