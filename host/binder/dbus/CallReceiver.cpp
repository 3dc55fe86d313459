#define LOG_TAG "BinderBus"

#include "CallReceiver.h"

#include <log/log.h>

#include <new>
#include <utility>

#include "MessageFormat.h"

namespace android::host::dbus {

void CallReceiver::onTransact(sdbus::MethodCall& message, const std::shared_ptr<Peer>& caller) {
    auto call = std::make_unique<BusCall>(
            message, caller, [this](BusCall& answered, status_t status, Payload reply) {
                respond(answered, status, std::move(reply));
            });
    const std::optional<Refusal> refusal = fill(*call, message);
    if (refusal.has_value()) {
        if (caller->mayLog()) ALOGW("A call of process %d: %s", caller->pid, refusal->why);
        call->abandon();
        mLink.sendError(message, refusal->error, refusal->why);
        mReleaser.release(call->localObjects());
    } else if (!caller->identified) {
        caller->unidentified.push_back(std::move(call));
    } else {
        call->callingPid = caller->pid;
        call->callingUid = caller->uid;
        CallQueue& queue = mQueues.of(SharedObjects::domainOf(call->object));
        queue.add(std::move(call));
    }
}

// Takes over what the message holds, and counts the call against its caller's share.
std::optional<CallReceiver::Refusal> CallReceiver::fill(BusCall& call, sdbus::MethodCall& message) {
    constexpr Refusal kNoRoom{kExhausted, "There is no memory or descriptor for the transaction"};
    constexpr Refusal kWrong{kMalformed, "The transaction is malformed"};
    message >> call.object >> call.code >> call.flags;
    call.flags &= ~static_cast<uint32_t>(IBinder::FLAG_ONEWAY);
    if (call.isOneWay()) call.flags |= IBinder::FLAG_ONEWAY;
    call.target = mObjects.find(call.object);
    try {
        Content content;
        const Reading reading = read(message, &content);
        if (reading == Reading::EXHAUSTED) return kNoRoom;
        if (reading == Reading::MALFORMED) return kWrong;
        if (!mExchange.unpack(std::move(content), call.caller, &call.request)) return kWrong;
    } catch (const std::bad_alloc&) {
        return kNoRoom;
    }
    if (call.target == nullptr) return Refusal{kNoSuchObject, "There is no such object"};
    if (!CallQueue::admit(call)) return Refusal{kOverloaded, "Too many calls are waiting"};
    return std::nullopt;
}

// On the thread that served the call.
void CallReceiver::respond(BusCall& call, status_t status, Payload reply) {
    if (call.caller->dead) return;
    ObjectExchange::Packed packed;
    const status_t packing = mExchange.pack(std::move(reply), *call.caller, &packed);
    try {
        call.reply << (packing == NO_ERROR ? status : packing);
        write(call.reply, packed.content);
        mExchange.send(packed.grants, *call.caller);
        if (mLink.send(call.reply)) return;
    } catch (const sdbus::Error& error) {
        ALOGE("A reply cannot be sent: %s", error.what());
        mLink.send(call.failure);
    }
    mExchange.takeBack(packed, *call.caller);
}

}  // namespace android::host::dbus
