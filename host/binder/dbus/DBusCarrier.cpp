#define LOG_TAG "BinderBus"

#include "DBusCarrier.h"

#include <log/log.h>

#include <utility>

#include "BusName.h"
#include "MessageFormat.h"

namespace android::host::dbus {

DBusCarrier::DBusCarrier(const std::string& address)
    : mLink(address),
      mBus(mLink),
      mReleaser(mQueues),
      mPeerTable(mLink),
      mDeaths(mPeerTable, mObjects, mQueues, mReleaser, mChannels),
      mPeers(mBus, mPeerTable, mDeaths, mQueues),
      mExchange(mLink, mObjects, mPeers, mReleaser),
      mSender(mLink, mObjects, mExchange, mDeaths, mChannels),
      mReceiver(mLink, mObjects, mExchange, mQueues, mReleaser),
      mChannels(mLink, mPeers, mExchange, mReceiver, mDeaths),
      mServices(mLink, mBus, mPeers, mExchange, mQueues, mReleaser) {
    mLink.start(this);
}

// The bus's messages, on the link's thread.

void DBusCarrier::onCall(sdbus::MethodCall call) {
    try {
        const std::shared_ptr<Peer> caller = mPeers.sender(call.getSender());
        const std::string method = call.getMemberName();
        if (method == kTransact) {
            mReceiver.onTransact(call, caller);
        } else if (method == kRelease) {
            mExchange.onRelease(call, *caller);
        } else if (method == kReleaseMany) {
            mExchange.onReleaseMany(call, *caller);
        } else if (method == kGrant) {
            mExchange.onGrant(call);
        } else if (method == kOpenChannel) {
            mChannels.onOpen(call, caller);
        } else if (method == kUseChannel) {
            mChannels.onUse(*caller);
        } else {
            mServices.onLookup(call, *caller);
        }
    } catch (const sdbus::Error& error) {
        ALOGW("A message is malformed: %s", error.what());
    }
}

void DBusCarrier::onNameOwnerChanged(const std::string& name, const std::string& oldOwner,
                                     const std::string& newOwner) {
    if (isUniqueName(name)) {
        if (newOwner.empty()) mDeaths.nameGone(name);
    } else if (oldOwner == mLink.uniqueName()) {
        mServices.onNameLost(name);
    }
}

void DBusCarrier::onDisconnected() {
    mDeaths.allGone();
    mServices.onDisconnected();
}

// The process's requests, on any thread.

status_t DBusCarrier::transact(int32_t handle, uint32_t code, uint32_t flags, Payload request,
                               Payload* reply) {
    return mSender.transact(handle, code, flags, std::move(request), reply);
}

std::optional<PoolWork> DBusCarrier::receive(Domain domain) {
    return mQueues.of(domain).take();
}

void DBusCarrier::stop() {
    mQueues.stop();
}

void DBusCarrier::acquire(int32_t handle) {
    mExchange.acquire(handle);
}

void DBusCarrier::release(int32_t handle) {
    mExchange.release(handle);
}

void DBusCarrier::watchDeath(int32_t handle, const wp<BpBinder>& proxy) {
    mDeaths.watch(handle, proxy);
}

void DBusCarrier::unwatchDeath(int32_t handle) {
    mDeaths.unwatch(handle);
}

status_t DBusCarrier::publish(const String16& name, const sp<IBinder>& service) {
    return mServices.publish(name, service);
}

void DBusCarrier::withdraw(const String16& name) {
    mServices.withdraw(name);
}

sp<IBinder> DBusCarrier::find(const String16& name) {
    return mServices.find(name);
}

std::vector<String16> DBusCarrier::list() {
    return mServices.list();
}

DBusCarrier::Counts DBusCarrier::counts() {
    return {mObjects.counts(), mPeerTable.size(), mQueues.size(), mLink.unanswered(),
            mChannels.count()};
}

}  // namespace android::host::dbus
