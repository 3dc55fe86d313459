#define LOG_TAG "BinderBus"

#include "CallSender.h"

#include <log/log.h>

#include <exception>
#include <future>
#include <string>
#include <utility>

#include "BusDaemon.h"
#include "MessageFormat.h"

namespace android::host::dbus {

namespace {

status_t statusOf(const std::string& error) {
    if (error == kNoSuchObject) return DEAD_OBJECT;
    if (error == kMalformed) return BAD_VALUE;
    if (error == "org.freedesktop.DBus.Error.AccessDenied") return PERMISSION_DENIED;
    return FAILED_TRANSACTION;
}

}  // namespace

status_t CallSender::transact(int32_t handle, uint32_t code, uint32_t flags, Payload request,
                              Payload* reply) {
    const auto remote = mObjects.remote(handle);
    if (!remote.has_value() || remote->owner->dead) return DEAD_OBJECT;
    const std::shared_ptr<Peer> callee = remote->owner;

    ObjectExchange::Packed packed;
    const status_t status = mExchange.pack(std::move(request), *callee, &packed);
    if (status != NO_ERROR) return status;

    Request sent{callee, remote->object, code, flags, packed.content, reply != nullptr, {}};
    try {
        mExchange.tellAndWait(packed.grants, *callee);
        if (!send(sent)) {
            mExchange.takeBack(packed, *callee);
            return lost(*callee);
        }
    } catch (const sdbus::Error& error) {
        ALOGE("A transaction cannot be sent: %s", error.what());
        mExchange.takeBack(packed, *callee);
        return FAILED_TRANSACTION;
    }
    if (reply == nullptr) return NO_ERROR;
    Answer answer = sent.answer.get();
    *reply = std::move(answer.content);
    return answer.status;
}

status_t CallSender::lost(const Peer& callee) {
    return callee.dead || mLink.isBroken() ? DEAD_OBJECT : FAILED_TRANSACTION;
}

bool CallSender::send(Request& request) {
    for (;;) {
        const auto channel = request.callee->direct();
        const Sending sending =
                channel != nullptr ? sendOnChannel(request, *channel) : sendOnBus(request);
        if (sending == Sending::CHANGED) continue;
        if (sending == Sending::SENT && channel == nullptr) mChannels.open(request.callee);
        return sending == Sending::SENT;
    }
}

CallSender::Sending CallSender::sendOnBus(Request& request) {
    const std::shared_ptr<Peer>& callee = request.callee;
    sdbus::MethodCall call = mLink.newCall(*callee->destination(), kInterface, kTransact);
    call << request.object << request.code << request.flags;
    write(call, request.content);
    const auto byBus = [&callee] { return callee->direct() == nullptr; };
    bool sent = false;
    if (request.answered) {
        const auto promise = std::make_shared<std::promise<Answer>>();
        request.answer = promise->get_future();
        sent = mLink.call(
                callee->destination(), call, BusLink::kForever,
                [this, promise, callee](sdbus::MethodReply& answer, const sdbus::Error* error) {
                    promise->set_value(onAnswer(answer, error, callee));
                },
                byBus);
    } else {
        sent = mLink.sendIf(byBus, call);
    }
    if (sent) return Sending::SENT;
    return byBus() ? Sending::FAILED : Sending::CHANGED;
}

CallSender::Sending CallSender::sendOnChannel(Request& request, PeerChannel& channel) {
    ChannelMessage message{ChannelKind::TRANSACT};
    message.value = request.code;
    message.object = request.object;
    message.flags = request.flags;
    if (request.answered) {
        const auto promise = std::make_shared<std::promise<Answer>>();
        request.answer = promise->get_future();
        message.call = channel.expect([this, promise, callee = request.callee](Unpacked* answer) {
            promise->set_value(onAnswer(answer, callee));
        });
        if (message.call == 0) return Sending::CHANGED;
    }
    PeerChannel::Sending sending = PeerChannel::Sending::FULL;
    try {
        const auto wait = request.answered ? PeerChannel::Wait::NO : PeerChannel::Wait::A_WHILE;
        sending = channel.send(packetOf(message, request.content), PeerChannel::Limit::CONTENT,
                               mLink.isServedHere() ? PeerChannel::Wait::NO : wait);
    } catch (const sdbus::Error&) {
        channel.forget(message.call);
        throw;
    }
    if (sending == PeerChannel::Sending::DONE) return Sending::SENT;
    channel.forget(message.call);
    return sending == PeerChannel::Sending::FULL ? Sending::FAILED : Sending::CHANGED;
}

// On the link's thread.
CallSender::Answer CallSender::onAnswer(sdbus::MethodReply& reply, const sdbus::Error* error,
                                        const std::shared_ptr<Peer>& callee) {
    if (error != nullptr) {
        if (meansDeath(error->getName())) {
            mDeaths.peerDied(callee);
            return {DEAD_OBJECT, {}};
        }
        ALOGW("A transaction failed: %s", error->what());
        return {statusOf(error->getName()), {}};
    }
    status_t status = UNKNOWN_ERROR;
    Content content;
    const Reading reading = read(reply, &status, &content);
    return take(reading, status, std::move(content), callee);
}

// The same on a channel. Without an answer, the channel is lost.
CallSender::Answer CallSender::onAnswer(Unpacked* answer, const std::shared_ptr<Peer>& callee) {
    if (answer == nullptr) return {lost(*callee), {}};
    if (answer->message.kind == ChannelKind::FAILURE) {
        const char* const error = errorOf(static_cast<Failure>(answer->message.value));
        ALOGW("A transaction failed: %s", error);
        return {statusOf(error), {}};
    }
    return take(answer->reading, static_cast<status_t>(answer->message.value),
                std::move(answer->content), callee);
}

CallSender::Answer CallSender::take(Reading reading, status_t status, Content content,
                                    const std::shared_ptr<Peer>& callee) {
    Answer answer{status, {}};
    try {
        if (reading == Reading::COMPLETE &&
            mExchange.unpack(std::move(content), callee, &answer.content)) {
            return answer;
        }
        if (reading == Reading::EXHAUSTED) {
            ALOGE("There is no memory or descriptor for a reply of process %d", callee->pid);
        } else {
            ALOGW("A reply of process %d is malformed", callee->pid);
        }
    } catch (const std::exception& failure) {
        ALOGE("A reply of process %d cannot be taken: %s", callee->pid, failure.what());
    }
    answer.status = FAILED_TRANSACTION;
    return answer;
}

}  // namespace android::host::dbus
