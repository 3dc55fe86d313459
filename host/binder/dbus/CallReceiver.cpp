#define LOG_TAG "BinderBus"

#include "CallReceiver.h"

#include <log/log.h>

#include <utility>

#include "MessageFormat.h"

namespace android::host::dbus {

namespace {

// What must not be destroyed on the link's thread when a call ends there.
SharedObjects::Objects localObjectsOf(const BusCall& call) {
    SharedObjects::Objects objects;
    if (call.target != nullptr) objects.push_back(call.target);
    for (const Payload::Object& object : call.request.objects) {
        if (object.binder->localBinder() != nullptr) objects.push_back(object.binder);
    }
    return objects;
}

}  // namespace

void CallReceiver::onTransact(sdbus::MethodCall message, const std::shared_ptr<Peer>& caller) {
    auto call = std::make_unique<BusCall>(
            std::move(message), caller, [this](BusCall& answered, status_t status, Payload reply) {
                respond(answered, status, std::move(reply));
            });
    sdbus::MethodCall received = call->message;
    received >> call->object >> call->code >> call->flags;
    call->flags &= ~static_cast<uint32_t>(IBinder::FLAG_ONEWAY);
    if (call->isOneWay()) call->flags |= IBinder::FLAG_ONEWAY;
    call->target = mObjects.find(call->object);
    Content content;
    const bool wellFormed = read(received, &content) &&
                            mExchange.unpack(std::move(content), caller, &call->request);

    if (!wellFormed) {
        refuse(*call, kMalformed, "The transaction is malformed");
    } else if (call->target == nullptr) {
        refuse(*call, kNoSuchObject, "There is no such object");
    } else if (!CallQueue::admit(*call)) {
        refuse(*call, kOverloaded, "Too many calls are waiting");
    } else if (!caller->identified) {
        caller->unidentified.push_back(std::move(call));
        return;
    } else {
        call->callingPid = caller->pid;
        call->callingUid = caller->uid;
        CallQueue& queue = mQueues.of(SharedObjects::domainOf(call->object));
        queue.add(std::move(call));
        return;
    }
    mReleaser.release(localObjectsOf(*call));
}

void CallReceiver::refuse(BusCall& call, const char* error, const char* why) {
    if (call.caller->mayLog()) ALOGW("A call of process %d: %s", call.caller->pid, why);
    call.abandon();
    mLink.sendError(call.message, error, why);
}

// On the thread that served the call.
void CallReceiver::respond(BusCall& call, status_t status, Payload reply) {
    if (call.caller->dead) return;
    ObjectExchange::Packed packed;
    const status_t packing = mExchange.pack(std::move(reply), *call.caller, &packed);
    try {
        sdbus::MethodReply message = call.message.createReply();
        message << (packing == NO_ERROR ? status : packing);
        write(message, packed.content);
        mExchange.send(packed.grants, *call.caller);
        if (mLink.send(message)) return;
    } catch (const sdbus::Error& error) {
        ALOGE("A reply cannot be sent: %s", error.what());
        mLink.sendError(call.message, kUnanswered, "The reply cannot be sent");
    }
    mExchange.takeBack(packed, *call.caller);
}

}  // namespace android::host::dbus
