#pragma once

#include <memory>
#include <string>
#include <vector>

#include "BusDaemon.h"
#include "CallQueue.h"
#include "DeathWatch.h"
#include "PeerTable.h"

namespace android::host::dbus {

/**
 * Finds other processes by name. The bus is asked who those are that send messages, and whether
 * those live that others speak of. For the link's thread alone.
 */
class PeerDirectory {
  public:
    PeerDirectory(BusDaemon& bus, PeerTable& peers, DeathWatch& deaths, CallQueues& queues)
        : mBus(bus), mPeers(peers), mDeaths(deaths), mQueues(queues) {}

    /** The process that a message came from. */
    std::shared_ptr<Peer> sender(const std::string& uniqueName);

    /** A process that another one named, which may have died long ago or never have been. */
    std::shared_ptr<Peer> mentioned(const std::string& uniqueName);

  private:
    using Peers = std::vector<std::shared_ptr<Peer>>;

    void identify(const std::shared_ptr<Peer>& peer);
    void askWhoLives();
    void onNames(const Peers& peers, sdbus::MethodReply& names);
    bool ask(const char* question, const Peer& peer, BusDaemon::ReplyHandler onReply,
             BusDaemon::EndHandler onEnd);
    void identified(Peer& peer);

    BusDaemon& mBus;
    PeerTable& mPeers;
    DeathWatch& mDeaths;
    CallQueues& mQueues;
    Peers mUnconfirmed;  // nobody has asked yet whether they live
    bool mAsking = false;
};

}  // namespace android::host::dbus
