#pragma once

#include <binder/BpBinder.h>

#include <memory>
#include <string>

#include "CallQueue.h"
#include "PeerTable.h"
#include "PoolReleaser.h"
#include "SharedObjects.h"

namespace android::host::dbus {

/**
 * Does what follows from the death of other processes. Every proxy is told of its owner's death,
 * watched or not, on a thread of the pool.
 */
class DeathWatch {
  public:
    DeathWatch(PeerTable& peers, SharedObjects& objects, CallQueue& queue, PoolReleaser& releaser)
        : mPeers(peers), mObjects(objects), mQueue(queue), mReleaser(releaser) {}

    // On the link's thread: a process died, the owner of a unique name is gone, all are gone.
    void peerDied(const std::shared_ptr<Peer>& peer);
    void nameGone(const std::string& uniqueName);
    void allGone();

    /** Makes sure that there is a thread to tell of a death; tells at once of one that was. */
    void watch(int32_t handle, const wp<BpBinder>& proxy);

  private:
    PeerTable& mPeers;
    SharedObjects& mObjects;
    CallQueue& mQueue;
    PoolReleaser& mReleaser;
};

}  // namespace android::host::dbus
