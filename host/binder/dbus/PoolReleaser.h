#pragma once

#include <array>
#include <mutex>
#include <set>

#include "CallQueue.h"
#include "SharedObjects.h"

namespace android::host::dbus {

/**
 * Releases references to this process's objects on a thread of their domain: an object's destructor
 * may do anything, so the last reference must not go on the link's thread or within a lock.
 */
class PoolReleaser {
  public:
    explicit PoolReleaser(CallQueues& queues) : mQueues(queues) {}

    /** An object that waits already does not wait a second time. */
    void release(sp<IBinder> object);
    void release(SharedObjects::Objects objects);

  private:
    CallQueues& mQueues;
    std::mutex mLock;                               // guards what follows
    std::array<std::set<sp<IBinder>>, 2> mWaiting;  // by domain
};

}  // namespace android::host::dbus
