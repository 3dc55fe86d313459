#include "PoolReleaser.h"

#include <utility>

namespace android::host::dbus {

void PoolReleaser::release(SharedObjects::Objects objects) {
    if (objects.empty()) return;
    std::lock_guard<std::mutex> lock(mLock);
    if (mWaiting.empty()) {
        mQueue.add([this] {
            // Destroyed after the guard, so without the lock.
            std::set<sp<IBinder>> released;
            std::lock_guard<std::mutex> guard(mLock);
            released.swap(mWaiting);
        });
    }
    for (sp<IBinder>& object : objects) mWaiting.insert(std::move(object));
    // With the lock held: the set still has each of them, so none is destroyed here.
    objects.clear();
}

}  // namespace android::host::dbus
