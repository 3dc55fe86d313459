#define LOG_TAG "BinderBus"

#include "ServiceNames.h"

#include <log/log.h>
#include <utils/String8.h>

#include <exception>
#include <future>
#include <utility>

#include "BusName.h"
#include "MessageFormat.h"
#include "host/binder/process/ServiceTable.h"
#include "host/binder/process/UnservedWarning.h"

namespace android::host::dbus {

namespace {

// RequestName: the process that adds a service last gets the name, and the one before loses it.
constexpr uint32_t kAllowReplacement = 1;
constexpr uint32_t kReplaceExisting = 2;
constexpr uint32_t kDoNotQueue = 4;
constexpr uint32_t kNowOwner = 1;
constexpr uint32_t kAlreadyOwner = 4;

}  // namespace

// The link's thread enters the new service, so before it sees a Lookup that the bus sends here for
// the name, and after the bus's earlier messages about the name.
status_t ServiceNames::publish(const String16& name, const sp<IBinder>& service) {
    const std::string name8 = String8(name).string();
    if (service->localBinder() != nullptr && SharedObjects::domainOf(service) == Domain::BINDER) {
        warnIfUnserved("Service '" + name8 + "' is published");
    }
    uint32_t outcome = 0;
    sp<IBinder> replaced;
    try {
        sdbus::MethodCall call = mBus.newCall("RequestName");
        call << busNameOf(name8) << (kAllowReplacement | kReplaceExisting | kDoNotQueue);
        const bool answered = mBus.callAndWait(call, [&](sdbus::MethodReply& reply) {
            reply >> outcome;
            if (outcome != kNowOwner && outcome != kAlreadyOwner) return;
            std::lock_guard<std::mutex> lock(mLock);
            replaced = std::exchange(mPublished[name8], service);
        });
        if (answered && outcome != kNowOwner && outcome != kAlreadyOwner) {
            ALOGE("Service '%s' belongs to another process", name8.c_str());
            return PERMISSION_DENIED;
        }
        if (!answered && !mLink.isBroken()) {
            ALOGW("Service '%s' is not published: the bus does not grant it", name8.c_str());
        }
    } catch (const sdbus::Error& error) {
        ALOGE("Service '%s' cannot be published: %s", name8.c_str(), error.what());
    }
    return NO_ERROR;
}

void ServiceNames::withdraw(const String16& name) {
    const std::string name8 = String8(name).string();
    const sp<IBinder> withdrawn = remove(name8);
    if (withdrawn == nullptr) return;
    try {
        sdbus::MethodCall call = mBus.newCall("ReleaseName");
        call << busNameOf(name8);
        mBus.callAndWait(call, [](sdbus::MethodReply&) {});
    } catch (const sdbus::Error& error) {
        ALOGE("Service '%s' cannot be withdrawn: %s", name8.c_str(), error.what());
    }
}

sp<IBinder> ServiceNames::published(const std::string& name) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto found = mPublished.find(name);
    return found != mPublished.end() ? found->second : nullptr;
}

// Gives what was removed, to be released without the lock; null if there is nothing.
sp<IBinder> ServiceNames::remove(const std::string& name) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto found = mPublished.find(name);
    if (found == mPublished.end()) return nullptr;
    const sp<IBinder> removed = found->second;
    mPublished.erase(found);
    return removed;
}

// Asked again, since an owner may be replaced between the two questions.
sp<IBinder> ServiceNames::find(const String16& name) {
    const std::string name8 = String8(name).string();
    const std::string busName = busNameOf(name8);
    if (busName.empty()) return nullptr;
    try {
        std::string asked;
        for (;;) {
            const std::string owner = ownerOf(busName);
            if (owner.empty() || owner == asked) return nullptr;
            const Answer answer = ask(owner, name8);
            if (!answer.refused) return answer.service;
            asked = owner;
        }
    } catch (const sdbus::Error& error) {
        ALOGE("Service '%s' cannot be looked for: %s", name8.c_str(), error.what());
    }
    return nullptr;
}

// The process itself is asked, and not the name: only then can be told whose an answer is.
std::string ServiceNames::ownerOf(const std::string& busName) {
    std::string owner;
    sdbus::MethodCall call = mBus.newCall("GetNameOwner");
    call << busName;
    mBus.callAndWait(call, [&owner](sdbus::MethodReply& reply) { reply >> owner; });
    return owner;
}

ServiceNames::Answer ServiceNames::ask(const std::string& owner, const std::string& name) {
    const auto destination = std::make_shared<BusLink::Destination>(mLink, owner, kObjectPath);
    sdbus::MethodCall call = mLink.newCall(*destination, kInterface, kLookup);
    call << name;
    auto promise = std::make_shared<std::promise<Answer>>();
    std::future<Answer> answer = promise->get_future();
    // The library's own limit is longer, so that this wait ends first and logs which service is
    // silent. An object that comes too late is given back.
    const bool sent = mLink.call(
            destination, call, 2 * BusLink::kPromptly,
            [this, promise](sdbus::MethodReply& reply, const sdbus::Error* error) {
                promise->set_value({error == nullptr ? onFound(reply) : nullptr, error != nullptr});
            });
    if (!sent) return {};
    if (answer.wait_for(BusLink::kPromptly) == std::future_status::ready) return answer.get();
    ALOGW("Service '%s' does not answer", name.c_str());
    return {};
}

// On the link's thread.
sp<IBinder> ServiceNames::onFound(sdbus::MethodReply& reply) {
    try {
        std::string owner;
        uint64_t object = 0;
        reply >> owner >> object;
        return mExchange.resolve(owner, object, mPeers.sender(reply.getSender()));
    } catch (const std::exception& malformed) {
        ALOGW("An answer is malformed: %s", malformed.what());
        return nullptr;
    }
}

std::vector<String16> ServiceNames::list() {
    std::vector<std::string> busNames;
    try {
        mBus.callAndWait(mBus.newCall("ListNames"),
                         [&busNames](sdbus::MethodReply& reply) { reply >> busNames; });
    } catch (const sdbus::Error& error) {
        ALOGE("The services cannot be listed: %s", error.what());
    }
    std::vector<String16> services;
    for (const std::string& busName : busNames) {
        const auto service = serviceNameOf(busName);
        if (service.has_value()) services.push_back(String16(service->c_str()));
    }
    return services;
}

void ServiceNames::onLookup(sdbus::MethodCall& call, Peer& caller) {
    std::string name;
    call >> name;
    const sp<IBinder> service = published(name);
    if (service == nullptr || !mExchange.isSendable(service)) {
        mLink.sendError(call, kNoSuchObject, "There is no such service");
        return;
    }
    std::vector<ObjectExchange::Grant> grants;
    const Reference reference = mExchange.refer(service, caller, &grants);
    sdbus::MethodReply reply = call.createReply();
    reply << (reference.owner.empty() ? mLink.uniqueName() : reference.owner) << reference.object;
    mExchange.tell(grants, caller, [this, reply, service] {
        mLink.send(reply);
        mReleaser.release(service);
    });
}

void ServiceNames::onDisconnected() {
    std::lock_guard<std::mutex> lock(mLock);
    for (const auto& [name, service] : mPublished) {
        CallQueue& queue = mQueues.of(SharedObjects::domainOf(service));
        queue.add([name16 = String16(name.c_str())] { ServiceTable::get()->tellLost(name16); });
    }
}

void ServiceNames::onNameLost(const std::string& busName) {
    const auto name = serviceNameOf(busName);
    if (!name.has_value()) return;
    sp<IBinder> lost = remove(*name);
    if (lost == nullptr) return;
    CallQueue& queue = mQueues.of(SharedObjects::domainOf(lost));
    queue.add([name16 = String16(name->c_str()), service = std::move(lost)] {
        ServiceTable::get()->removeReplaced(name16, service);
    });
}

}  // namespace android::host::dbus
