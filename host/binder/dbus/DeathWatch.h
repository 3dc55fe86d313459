#pragma once

#include <binder/BpBinder.h>

#include <memory>
#include <string>

#include "CallQueue.h"
#include "PeerTable.h"
#include "PoolReleaser.h"
#include "SharedObjects.h"

namespace android::host::dbus {

class Channels;

/**
 * Does what follows from the death of other processes. A proxy that is watched is told of its
 * owner's death on a thread of its domain, once the process has one.
 */
class DeathWatch {
  public:
    DeathWatch(PeerTable& peers, SharedObjects& objects, CallQueues& queues, PoolReleaser& releaser,
               Channels& channels)
        : mPeers(peers),
          mObjects(objects),
          mQueues(queues),
          mReleaser(releaser),
          mChannels(channels) {}

    // On the link's thread: a process died, the owner of a unique name is gone, all are gone.
    void peerDied(const std::shared_ptr<Peer>& peer);
    void nameGone(const std::string& uniqueName);
    void allGone();

    void unwatch(int32_t handle) { mObjects.unwatch(handle); }

    /** Warns if no thread can tell of a death; tells at once of one that was. */
    void watch(int32_t handle, const wp<BpBinder>& proxy);

  private:
    PeerTable& mPeers;
    SharedObjects& mObjects;
    CallQueues& mQueues;
    PoolReleaser& mReleaser;
    Channels& mChannels;
};

}  // namespace android::host::dbus
