#include "DeathWatch.h"

#include <binder/ProcessState.h>

#include <utility>
#include <vector>

#include "Channels.h"
#include "host/binder/process/UnservedWarning.h"

namespace android::host::dbus {

// What it said last comes first.
void DeathWatch::peerDied(const std::shared_ptr<Peer>& peer) {
    mChannels.readRest(*peer);
    mPeers.remove(peer);
    SharedObjects::Objects released;
    const std::vector<int32_t> handles = mObjects.peerDied(*peer, &released);
    const CallQueue::Calls dropped = mQueues.senderLeft(*peer);
    for (const auto& call : dropped) mReleaser.release(call->localObjects());
    for (const int32_t handle : handles) {
        // It is pinned, so it is there.
        const Domain domain = SharedObjects::domainOf(mObjects.remote(handle)->object);
        mQueues.of(domain).add([this, handle] {
            const sp<IBinder> proxy = ProcessState::self()->getStrongProxyForHandle(handle);
            mObjects.unpin(handle);
            if (proxy != nullptr) proxy->remoteBinder()->sendObituary();
        });
    }
    mReleaser.release(std::move(released));
    mChannels.end(*peer);
}

void DeathWatch::nameGone(const std::string& uniqueName) {
    const std::shared_ptr<Peer> peer = mPeers.find(uniqueName);
    if (peer != nullptr) peerDied(peer);
}

void DeathWatch::allGone() {
    for (const std::shared_ptr<Peer>& peer : mPeers.all()) peerDied(peer);
}

void DeathWatch::watch(int32_t handle, const wp<BpBinder>& proxy) {
    const auto remote = mObjects.remote(handle);
    const Domain domain =
            remote.has_value() ? SharedObjects::domainOf(remote->object) : Domain::BINDER;
    if (domain == Domain::BINDER) warnIfUnserved("A death is waited for");
    if (mObjects.watch(handle)) return;
    mQueues.of(domain).add([proxy] {
        const sp<BpBinder> dead = proxy.promote();
        if (dead != nullptr) dead->sendObituary();
    });
}

}  // namespace android::host::dbus
