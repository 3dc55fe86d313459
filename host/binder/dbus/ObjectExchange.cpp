#define LOG_TAG "BinderBus"

#include "ObjectExchange.h"

#include <binder/BpBinder.h>
#include <binder/ProcessState.h>
#include <log/log.h>

#include <algorithm>
#include <atomic>
#include <future>
#include <map>
#include <utility>

#include "BusName.h"
#include "ChannelFormat.h"
#include "PeerChannel.h"
#include "host/binder/process/UnservedWarning.h"

namespace android::host::dbus {

namespace {

Content contentOf(const std::map<uint64_t, uint32_t>& counts) {
    Content content;
    for (const auto& [object, count] : counts) content.references.push_back({count, "", object});
    return content;
}

}  // namespace

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
        out->objects.push_back(object.binder);
    }
    out->content.bytes = std::move(payload.bytes);
    return NO_ERROR;
}

void ObjectExchange::tell(const std::vector<Grant>& grants, const Peer& holder,
                          std::function<void()> done) {
    // One more than there are grants, so that it is not done before all were sent.
    const auto left = std::make_shared<std::atomic<size_t>>(grants.size() + 1);
    const auto answered = [left, done = std::move(done)] {
        if (--*left == 0) done();
    };
    for (const Grant& grant : grants) {
        bool sent = false;
        if (!grant.owner->dead) {
            sdbus::MethodCall call = mLink.newCall(*grant.owner->destination(), kInterface, kGrant);
            call << grant.object << holder.name;
            sent = mLink.call(grant.owner->destination(), call, BusLink::kPromptly,
                              [answered](sdbus::MethodReply&, const sdbus::Error*) { answered(); });
        }
        if (!sent) answered();
    }
    answered();
}

void ObjectExchange::tellAndWait(const std::vector<Grant>& grants, const Peer& holder) {
    if (grants.empty()) return;
    const auto promise = std::make_shared<std::promise<void>>();
    tell(grants, holder, [promise] { promise->set_value(); });
    promise->get_future().wait();
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
    if (!holds.has_value()) return;
    release(*holds->remote.owner, {{holds->remote.object, holds->count}});
}

sdbus::MethodCall ObjectExchange::callOf(Peer& owner, const Counts& counts) {
    const bool single = counts.size() == 1;
    sdbus::MethodCall call =
            mLink.newCall(*owner.destination(), kInterface, single ? kRelease : kReleaseMany);
    if (single) {
        call << counts.begin()->first << counts.begin()->second;
    } else {
        std::vector<sdbus::Struct<uint64_t, uint32_t>> all;
        for (const auto& [object, count] : counts) all.emplace_back(object, count);
        call << all;
    }
    return call;
}

void ObjectExchange::release(Peer& owner, const Counts& counts) {
    const auto byBus = [&owner] { return owner.direct() == nullptr; };
    try {
        while (!owner.dead) {
            if (const auto channel = owner.direct(); channel != nullptr) {
                if (channel->send(packetOf({ChannelKind::RELEASE}, contentOf(counts)),
                                  PeerChannel::Limit::NECESSARY) != PeerChannel::Sending::CLOSED) {
                    return;
                }
            } else {
                sdbus::MethodCall call = callOf(owner, counts);
                if (mLink.sendIf(byBus, call) || byBus()) return;
            }
        }
    } catch (const sdbus::Error& error) {
        ALOGE("An object cannot be released: %s", error.what());
    }
}

bool ObjectExchange::isWellFormed(const std::string& owner, uint64_t object) {
    return owner == mLink.uniqueName() ? mObjects.find(object) != nullptr : isUniqueName(owner);
}

bool ObjectExchange::areWellFormed(const std::vector<Reference>& references) {
    return std::all_of(references.begin(), references.end(), [this](const Reference& each) {
        return each.owner.empty() || isWellFormed(each.owner, each.object);
    });
}

bool ObjectExchange::unpack(Content content, const std::shared_ptr<Peer>& sender, Payload* out) {
    if (!areWellFormed(content.references)) return false;
    bool complete = true;
    Handles unknown;
    for (const Reference& reference : content.references) {
        const std::string& owner = reference.owner.empty() ? sender->name : reference.owner;
        const sp<IBinder> binder = resolve(owner, reference.object, sender, &unknown);
        // An object of this process may have lost its last holder just now.
        complete = complete && binder != nullptr;
        if (binder != nullptr) out->objects.push_back({reference.offset, binder});
    }
    unpinOnceKnown(std::move(unknown), sender);
    out->bytes = std::move(content.bytes);
    return complete;
}

void ObjectExchange::decline(const std::vector<Reference>& references,
                             const std::shared_ptr<Peer>& sender) {
    std::map<std::shared_ptr<Peer>, Counts> owners;
    for (const Reference& each : references) {
        const bool own = each.owner.empty() || each.owner == sender->name;
        const std::shared_ptr<Peer> owner = own ? sender : mPeers.living(each.owner);
        if (owner != nullptr) owners[owner][each.object]++;
    }
    for (const auto& [owner, counts] : owners) release(*owner, counts);
}

sp<IBinder> ObjectExchange::resolve(const std::string& owner, uint64_t object,
                                    const std::shared_ptr<Peer>& sender) {
    if (!isWellFormed(owner, object)) return nullptr;
    Handles unknown;
    const sp<IBinder> binder = resolve(owner, object, sender, &unknown);
    unpinOnceKnown(std::move(unknown), sender);
    return binder;
}

// While nobody knows whether its owner lives, a handle stays pinned, so that nothing is sent there.
sp<IBinder> ObjectExchange::resolve(const std::string& owner, uint64_t object,
                                    const std::shared_ptr<Peer>& sender, Handles* unknown) {
    if (owner == mLink.uniqueName()) return mObjects.find(object);
    const std::shared_ptr<Peer> peer = owner == sender->name ? sender : mPeers.mentioned(owner);
    const int32_t handle = mObjects.receive(peer, object);
    const sp<IBinder> proxy = ProcessState::self()->getStrongProxyForHandle(handle);
    if (peer->known) {
        giveBack(mObjects.unpin(handle));
    } else {
        unknown->push_back(handle);
    }
    return proxy;
}

// Until then they count against the sender's share.
void ObjectExchange::unpinOnceKnown(Handles handles, const std::shared_ptr<Peer>& sender) {
    if (handles.empty()) return;
    const size_t cost = handles.size() * Peer::kObjectCost;
    sender->waitingBytes += cost;
    mPeers.onceKnown([this, sender, cost, handles = std::move(handles)] {
        sender->waitingBytes -= cost;
        std::map<std::shared_ptr<Peer>, Counts> owners;
        for (const int32_t handle : handles) {
            const auto holds = mObjects.unpin(handle);
            if (holds.has_value()) owners[holds->remote.owner][holds->remote.object] = holds->count;
        }
        for (const auto& [owner, counts] : owners) release(*owner, counts);
    });
}

void ObjectExchange::onRelease(sdbus::MethodCall& call, Peer& caller) {
    uint64_t object = 0;
    uint32_t count = 0;
    call >> object >> count;
    onRelease({{count, "", object}}, caller);
}

void ObjectExchange::onRelease(const std::vector<Reference>& given, Peer& caller) {
    SharedObjects::Objects released;
    for (const Reference& each : given) {
        mObjects.giveBack(each.object, each.offset, caller, &released);
    }
    mReleaser.release(std::move(released));
}

void ObjectExchange::onReleaseMany(sdbus::MethodCall& call, Peer& caller) {
    SharedObjects::Objects released;
    call.enterContainer("(tu)");
    // Not more than a message may have lent.
    for (size_t left = kMaxReferences; left > 0 && call.enterStruct("tu"); left--) {
        uint64_t object = 0;
        uint32_t count = 0;
        call >> object >> count;
        call.exitStruct();
        mObjects.giveBack(object, count, caller, &released);
    }
    mReleaser.release(std::move(released));
}

void ObjectExchange::onGrant(sdbus::MethodCall& call) {
    uint64_t object = 0;
    std::string holder;
    call >> object >> holder;
    // Nobody would give back a hold of this process itself, or of what its giver does not hold.
    if (isUniqueName(holder) && holder != mLink.uniqueName() &&
        mObjects.holds(object, *mPeers.sender(call.getSender()))) {
        const std::shared_ptr<Peer> peer = mPeers.mentioned(holder);
        mObjects.lendOn(object, *peer);
        if (!peer->known) mPeers.onceKnown([] {});
    }
    if (!call.doesntExpectReply()) mLink.send(call.createReply());
}

}  // namespace android::host::dbus
