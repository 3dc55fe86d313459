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

// Counts the call against its caller's share and takes over what the message holds; what a call
// that is refused refers to is not even resolved.
std::optional<CallReceiver::Refusal> CallReceiver::fill(BusCall& call, sdbus::MethodCall& message) {
    constexpr Refusal kNoRoom{kExhausted, "There is no memory or descriptor for the transaction"};
    constexpr Refusal kWrong{kMalformed, "The transaction is malformed"};
    message >> call.object >> call.code >> call.flags;
    call.flags &= ~static_cast<uint32_t>(IBinder::FLAG_ONEWAY);
    if (call.isOneWay()) call.flags |= IBinder::FLAG_ONEWAY;
    call.target = mObjects.find(call.object);
    Content content;
    const auto refuse = [&](const Refusal& refusal) {
        mExchange.decline(content.references, call.caller);
        return refusal;
    };
    Reading reading = readReferences(message, &content.references);
    if (call.target == nullptr) return refuse({kNoSuchObject, "There is no such object"});
    if (reading == Reading::COMPLETE) reading = readBytes(message, &content.bytes);
    if (reading == Reading::EXHAUSTED) return refuse(kNoRoom);
    if (reading == Reading::MALFORMED || !mExchange.areWellFormed(content.references)) {
        return refuse(kWrong);
    }
    if (!CallQueue::admit(call, content.bytes.capacity(), content.references.size())) {
        return refuse({kOverloaded, "Too many calls are waiting"});
    }
    std::optional<Refusal> refusal;
    try {
        const bool complete = mExchange.unpack(std::move(content), call.caller, &call.request);
        if (!complete) refusal = kWrong;
    } catch (const std::bad_alloc&) {
        refusal = kNoRoom;
    }
    if (refusal.has_value()) CallQueue::dismiss(call);
    return refusal;
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
