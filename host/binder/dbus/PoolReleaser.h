#pragma once

#include <mutex>
#include <set>

#include "CallQueue.h"
#include "SharedObjects.h"

namespace android::host::dbus {

/**
 * Releases references to this process's objects on a thread of the pool: an object's destructor
 * may do anything, so the last reference must not go on the link's thread or within a lock.
 */
class PoolReleaser {
  public:
    explicit PoolReleaser(CallQueue& queue) : mQueue(queue) {}

    /** An object that waits already does not wait a second time. */
    void release(SharedObjects::Objects objects);

  private:
    CallQueue& mQueue;
    std::mutex mLock;  // guards what follows
    std::set<sp<IBinder>> mWaiting;
};

}  // namespace android::host::dbus
