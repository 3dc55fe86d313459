#include "BusCall.h"

#include <utility>

#include "CallQueue.h"

namespace android::host::dbus {

BusCall::BusCall(sdbus::MethodCall received, std::shared_ptr<Peer> sender, Responder responder)
    : message(std::move(received)), caller(std::move(sender)), mResponder(std::move(responder)) {}

BusCall::~BusCall() {
    if (!mAnswered && !isOneWay()) mResponder(*this, UNKNOWN_ERROR, Payload());
    if (mQueue != nullptr) mQueue->leaveLane(object);
}

void BusCall::answer(status_t status, Payload reply) {
    mAnswered = true;
    mResponder(*this, status, std::move(reply));
}

}  // namespace android::host::dbus
