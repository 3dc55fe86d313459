#define LOG_TAG "BinderBus"

#include "ObjectExchange.h"

#include <binder/BpBinder.h>
#include <binder/ProcessState.h>
#include <log/log.h>

#include <utility>

#include "BusName.h"
#include "host/binder/process/UnservedWarning.h"

namespace android::host::dbus {

bool ObjectExchange::isSendable(const sp<IBinder>& binder) {
    if (binder->localBinder() != nullptr) return true;
    BpBinder* const proxy = binder->remoteBinder();
    return proxy != nullptr && mObjects.remote(proxy->handle()).has_value();
}

Reference ObjectExchange::refer(const sp<IBinder>& binder, Peer& receiver,
                                std::vector<Grant>* grants) {
    if (BBinder* local = binder->localBinder(); local != nullptr) {
        if (SharedObjects::domainOf(binder) == Domain::BINDER) {
            warnIfUnserved("An object is lent to another process");
        }
        return {0, "", mObjects.lend(local, receiver)};
    }
    const SharedObjects::Remote remote = *mObjects.remote(binder->remoteBinder()->handle());
    if (remote.owner->name != receiver.name) grants->push_back({remote.owner, remote.object});
    return {0, remote.owner->name, remote.object};
}

status_t ObjectExchange::pack(Payload payload, Peer& receiver, Packed* out) {
    if (payload.bytes.size() > kMaxTransactionSize || payload.objects.size() > kMaxReferences) {
        ALOGE("A transaction of %zu bytes and %zu objects is too large: it may have %zu and %zu",
              payload.bytes.size(), payload.objects.size(), kMaxTransactionSize, kMaxReferences);
        return FAILED_TRANSACTION;
    }
    for (const Payload::Object& object : payload.objects) {
        if (!isSendable(object.binder)) return BAD_VALUE;
    }
    for (const Payload::Object& object : payload.objects) {
        Reference reference = refer(object.binder, receiver, &out->grants);
        reference.offset = static_cast<uint32_t>(object.offset);
        out->content.references.push_back(std::move(reference));
    }
    out->content.bytes = std::move(payload.bytes);
    return NO_ERROR;
}

void ObjectExchange::send(const std::vector<Grant>& grants, const Peer& holder) {
    for (const Grant& grant : grants) {
        if (grant.owner->dead) continue;
        sdbus::MethodCall call = mLink.newCall(*grant.owner->destination(), kInterface, kGrant);
        call << grant.object << holder.name;
        mLink.send(call);
    }
}

void ObjectExchange::takeBack(const Packed& packed, Peer& receiver) {
    SharedObjects::Objects released;
    for (const Reference& reference : packed.content.references) {
        if (!reference.owner.empty()) continue;
        mObjects.giveBack(reference.object, 1, receiver, &released);
    }
    mReleaser.release(std::move(released));
}

void ObjectExchange::acquire(int32_t handle) {
    mObjects.acquire(handle);
}

void ObjectExchange::release(int32_t handle) {
    giveBack(mObjects.release(handle));
}

void ObjectExchange::giveBack(const std::optional<SharedObjects::Holds>& holds) {
    if (!holds.has_value() || holds->remote.owner->dead) return;
    try {
        sdbus::MethodCall call =
                mLink.newCall(*holds->remote.owner->destination(), kInterface, kRelease);
        call << holds->remote.object << holds->count;
        mLink.send(call);
    } catch (const sdbus::Error& error) {
        ALOGE("An object cannot be released: %s", error.what());
    }
}

bool ObjectExchange::unpack(Content content, const std::shared_ptr<Peer>& sender, Payload* out) {
    bool complete = true;
    for (const Reference& reference : content.references) {
        const std::string& owner = reference.owner.empty() ? sender->name : reference.owner;
        const sp<IBinder> binder = resolve(owner, reference.object, sender);
        complete = complete && binder != nullptr;
        if (binder != nullptr) out->objects.push_back({reference.offset, binder});
    }
    out->bytes = std::move(content.bytes);
    return complete;
}

sp<IBinder> ObjectExchange::resolve(const std::string& owner, uint64_t object,
                                    const std::shared_ptr<Peer>& sender) {
    if (owner == mLink.uniqueName()) return mObjects.find(object);
    if (!isUniqueName(owner)) return nullptr;
    const int32_t handle =
            mObjects.receive(owner == sender->name ? sender : mPeers.mentioned(owner), object);
    const sp<IBinder> proxy = ProcessState::self()->getStrongProxyForHandle(handle);
    giveBack(mObjects.unpin(handle));
    return proxy;
}

void ObjectExchange::onRelease(sdbus::MethodCall& call, Peer& caller) {
    uint64_t object = 0;
    uint32_t count = 0;
    call >> object >> count;
    SharedObjects::Objects released;
    mObjects.giveBack(object, count, caller, &released);
    mReleaser.release(std::move(released));
}

void ObjectExchange::onGrant(sdbus::MethodCall& call) {
    uint64_t object = 0;
    std::string holder;
    call >> object >> holder;
    if (isUniqueName(holder) && mObjects.find(object) != nullptr) {
        mObjects.lendOn(object, *mPeers.mentioned(holder));
    }
}

}  // namespace android::host::dbus
