#pragma once

#include <memory>
#include <string>

#include "BusDaemon.h"
#include "CallQueue.h"
#include "DeathWatch.h"
#include "PeerTable.h"

namespace android::host::dbus {

/**
 * Finds other processes by name. A process that is new is asked for at the bus: who it is, and
 * whether it lives at all. For the link's thread alone.
 */
class PeerDirectory {
  public:
    PeerDirectory(BusDaemon& bus, PeerTable& peers, DeathWatch& deaths, CallQueues& queues)
        : mBus(bus), mPeers(peers), mDeaths(deaths), mQueues(queues) {}

    std::shared_ptr<Peer> named(const std::string& uniqueName);

  private:
    bool ask(const char* question, const Peer& peer, BusDaemon::ReplyHandler onReply,
             BusDaemon::EndHandler onEnd);
    void identified(Peer& peer);

    BusDaemon& mBus;
    PeerTable& mPeers;
    DeathWatch& mDeaths;
    CallQueues& mQueues;
};

}  // namespace android::host::dbus
