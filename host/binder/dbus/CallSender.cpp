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

    try {
        sdbus::MethodCall call = mLink.newCall(*callee->destination(), kInterface, kTransact);
        call << remote->object << code << flags;
        write(call, packed.content);
        mExchange.send(packed.grants, *callee);
        if (reply == nullptr) {
            if (mLink.send(call)) return NO_ERROR;
        } else {
            auto promise = std::make_shared<std::promise<Answer>>();
            std::future<Answer> answered = promise->get_future();
            const bool sent = mLink.call(
                    callee->destination(), call, BusLink::kForever,
                    [this, promise, callee](sdbus::MethodReply& answer, const sdbus::Error* error) {
                        promise->set_value(onAnswer(answer, error, callee));
                    });
            if (sent) {
                Answer answer = answered.get();
                *reply = std::move(answer.content);
                return answer.status;
            }
        }
    } catch (const sdbus::Error& error) {
        ALOGE("A transaction cannot be sent: %s", error.what());
        mExchange.takeBack(packed, *callee);
        return FAILED_TRANSACTION;
    }
    mExchange.takeBack(packed, *callee);
    return callee->dead || mLink.isBroken() ? DEAD_OBJECT : FAILED_TRANSACTION;
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
    Answer answer{UNKNOWN_ERROR, {}};
    try {
        Content content;
        const Reading reading = read(reply, &answer.status, &content);
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
