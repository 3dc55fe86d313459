#include "PoolReleaser.h"

#include <utility>

namespace android::host::dbus {

void PoolReleaser::release(SharedObjects::Objects objects) {
    for (sp<IBinder>& object : objects) release(std::move(object));
}

void PoolReleaser::release(sp<IBinder> object) {
    const Domain domain = SharedObjects::domainOf(object);
    std::set<sp<IBinder>>& waiting = mWaiting[static_cast<size_t>(domain)];
    std::lock_guard<std::mutex> lock(mLock);
    if (waiting.empty()) {
        mQueues.of(domain).add([this, &waiting] {
            // Destroyed after the guard, so without the lock.
            std::set<sp<IBinder>> released;
            std::lock_guard<std::mutex> guard(mLock);
            released.swap(waiting);
        });
    }
    waiting.insert(object);
    // With the lock held: the set has the object, so it is not destroyed here.
    object.clear();
}

}  // namespace android::host::dbus
