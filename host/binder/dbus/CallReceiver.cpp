#define LOG_TAG "BinderBus"

#include "CallReceiver.h"

#include <log/log.h>

#include <new>
#include <utility>

#include "MessageFormat.h"

namespace android::host::dbus {

BusCall::Responder CallReceiver::responder() {
    return [this](BusCall& answered, status_t status, Payload reply) {
        respond(answered, status, std::move(reply));
    };
}

void CallReceiver::onTransact(sdbus::MethodCall& message, const std::shared_ptr<Peer>& caller) {
    auto call = std::make_unique<BusCall>(message, caller, responder());
    uint32_t code = 0;
    uint32_t flags = 0;
    message >> call->object >> code >> flags;
    Content content;
    const Reading references = readReferences(message, &content.references);
    const std::optional<Refusal> refusal =
            fill(*call, code, flags, std::move(content), references,
                 [&message](std::vector<uint8_t>* bytes) { return readBytes(message, bytes); });
    if (refusal.has_value()) {
        refuse(*call, *refusal);
        mLink.sendError(message, errorOf(refusal->failure), refusal->why);
    } else {
        enqueue(std::move(call));
    }
}

void CallReceiver::onTransact(Unpacked& packet, const std::shared_ptr<Peer>& caller,
                              const std::shared_ptr<PeerChannel>& channel) {
    const ChannelMessage& message = packet.message;
    auto call = std::make_unique<BusCall>(channel, message.call, caller, responder());
    call->object = message.object;
    std::vector<uint8_t> read = std::move(packet.content.bytes);
    const std::optional<Refusal> refusal =
            fill(*call, message.value, message.flags, std::move(packet.content), packet.reading,
                 [&read](std::vector<uint8_t>* bytes) {
                     *bytes = std::move(read);
                     return Reading::COMPLETE;
                 });
    if (refusal.has_value()) {
        refuse(*call, *refusal);
        sendFailure(*call, refusal->failure);
    } else {
        enqueue(std::move(call));
    }
}

void CallReceiver::refuse(BusCall& call, const Refusal& refusal) {
    if (call.caller->mayLog()) {
        ALOGW("A call of process %d: %s", call.caller->pid, refusal.why);
    }
    call.abandon();
    mReleaser.release(call.localObjects());
}

void CallReceiver::enqueue(std::unique_ptr<BusCall> call) {
    Peer& caller = *call->caller;
    if (!caller.identified) {
        caller.unidentified.push_back(std::move(call));
        return;
    }
    call->callingPid = caller.pid;
    call->callingUid = caller.uid;
    CallQueue& queue = mQueues.of(SharedObjects::domainOf(call->object));
    queue.add(std::move(call));
}

// Counts the call against its caller's share and takes over what the message holds; what a call
// that is refused refers to is not even resolved.
std::optional<CallReceiver::Refusal> CallReceiver::fill(BusCall& call, uint32_t code,
                                                        uint32_t flags, Content content,
                                                        Reading references,
                                                        const ReadBytes& readBytes) {
    constexpr Refusal kNoRoom{Failure::EXHAUSTED,
                              "There is no memory or descriptor for the transaction"};
    constexpr Refusal kWrong{Failure::MALFORMED, "The transaction is malformed"};
    call.code = code;
    call.flags = flags & ~static_cast<uint32_t>(IBinder::FLAG_ONEWAY);
    if (call.isOneWay()) call.flags |= IBinder::FLAG_ONEWAY;
    call.target = mObjects.find(call.object);
    const auto refuse = [&](const Refusal& refusal) {
        mExchange.decline(content.references, call.caller);
        return refusal;
    };
    Reading reading = references;
    if (call.target == nullptr) {
        return refuse({Failure::NO_SUCH_OBJECT, "There is no such object"});
    }
    if (reading == Reading::COMPLETE) reading = readBytes(&content.bytes);
    if (reading == Reading::EXHAUSTED) return refuse(kNoRoom);
    if (reading == Reading::MALFORMED || !mExchange.areWellFormed(content.references)) {
        return refuse(kWrong);
    }
    if (!CallQueue::admit(call, content.bytes.capacity(), content.references.size())) {
        return refuse({Failure::OVERLOADED, "Too many calls are waiting"});
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
    if (packing != NO_ERROR) status = packing;
    const bool sent = call.channel != nullptr ? respondOnChannel(call, status, packed)
                                              : respondOnBus(call, status, packed);
    if (!sent) mExchange.takeBack(packed, *call.caller);
}

bool CallReceiver::respondOnBus(BusCall& call, status_t status,
                                const ObjectExchange::Packed& packed) {
    try {
        call.reply << status;
        write(call.reply, packed.content);
        mExchange.tellAndWait(packed.grants, *call.caller);
        if (!mLink.send(call.reply)) return false;
        keepUntilRead(*call.caller, packed.objects);
        return true;
    } catch (const sdbus::Error& error) {
        ALOGE("A reply cannot be sent: %s", error.what());
        mLink.send(call.failure);
    }
    return false;
}

// A call that came on the bus is answered there, and what is sent on a channel may overtake the
// answer. Its objects must not be given back on the channel before it is read.
void CallReceiver::keepUntilRead(Peer& reader, std::vector<sp<IBinder>> objects) {
    if (objects.empty() || reader.direct() == nullptr) return;
    mLink.ping(reader.destination(), [this, objects = std::move(objects)](const sdbus::Error*) {
        for (const sp<IBinder>& object : objects) mReleaser.release(object);
    });
}

// The thread does not wait until it is written: the caller must not hold up the pool by not
// reading.
bool CallReceiver::respondOnChannel(BusCall& call, status_t status,
                                    const ObjectExchange::Packed& packed) {
    ChannelMessage reply{ChannelKind::REPLY};
    reply.value = static_cast<uint32_t>(status);
    reply.call = call.channelCall;
    try {
        mExchange.tellAndWait(packed.grants, *call.caller);
        const PeerChannel::Sending sending =
                call.channel->send(packetOf(reply, packed.content), PeerChannel::Limit::CONTENT);
        if (sending != PeerChannel::Sending::FULL) return sending == PeerChannel::Sending::DONE;
    } catch (const sdbus::Error& error) {
        ALOGE("A reply cannot be sent: %s", error.what());
    }
    sendFailure(call, Failure::UNANSWERED);
    return false;
}

void CallReceiver::sendFailure(const BusCall& call, Failure failure) {
    if (call.isOneWay()) return;
    ChannelMessage message{ChannelKind::FAILURE};
    message.value = static_cast<uint32_t>(failure);
    message.call = call.channelCall;
    call.channel->send(packetOf(message, {}), PeerChannel::Limit::NECESSARY);
}

}  // namespace android::host::dbus
