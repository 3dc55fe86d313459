#include "DeathWatch.h"

#include <binder/ProcessState.h>

#include <utility>
#include <vector>

#include "host/binder/process/PoolForCalls.h"

namespace android::host::dbus {

void DeathWatch::peerDied(const std::shared_ptr<Peer>& peer) {
    mPeers.remove(peer);
    SharedObjects::Objects released;
    const std::vector<int32_t> handles = mObjects.peerDied(*peer, &released);
    if (!handles.empty()) startPoolForCalls();
    for (const int32_t handle : handles) {
        mQueue.add([this, handle] {
            const sp<IBinder> proxy = ProcessState::self()->getStrongProxyForHandle(handle);
            mObjects.unpin(handle);
            if (proxy != nullptr) proxy->remoteBinder()->sendObituary();
        });
    }
    mReleaser.release(std::move(released));
}

void DeathWatch::nameGone(const std::string& uniqueName) {
    const std::shared_ptr<Peer> peer = mPeers.find(uniqueName);
    if (peer != nullptr) peerDied(peer);
}

void DeathWatch::allGone() {
    for (const std::shared_ptr<Peer>& peer : mPeers.all()) peerDied(peer);
}

void DeathWatch::watch(int32_t handle, const wp<BpBinder>& proxy) {
    startPoolForCalls();
    const auto remote = mObjects.remote(handle);
    if (remote.has_value() && !remote->owner->dead) return;
    mQueue.add([proxy] {
        const sp<BpBinder> dead = proxy.promote();
        if (dead != nullptr) dead->sendObituary();
    });
}

}  // namespace android::host::dbus
