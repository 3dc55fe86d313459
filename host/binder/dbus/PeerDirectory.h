#pragma once

#include <functional>
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

    /**
     * A process that another one named, which may have died long ago or never have been. Unless it
     * is known, what was made of its name has to wait for onceKnown().
     */
    std::shared_ptr<Peer> mentioned(const std::string& uniqueName);

    /** Does something once the bus was asked for all who were mentioned until now. */
    void onceKnown(std::function<void()> action);

    /** A process that is known and lives; null if there is none of this name. */
    std::shared_ptr<Peer> living(const std::string& uniqueName);

    /** Asks who it is, unless that was asked before. */
    void identify(const std::shared_ptr<Peer>& peer);

  private:
    using Peers = std::vector<std::shared_ptr<Peer>>;

    // Whether they live, and what is to be done when that is known.
    struct Question {
        Peers peers;
        std::vector<std::function<void()>> actions;
    };
    void askWhoLives();
    void onNames(const Peers& peers, sdbus::MethodReply& names);
    static void settle(const Question& question);
    bool ask(const char* question, const Peer& peer, BusDaemon::ReplyHandler onReply,
             BusDaemon::EndHandler onEnd);
    void identified(Peer& peer);

    BusDaemon& mBus;
    PeerTable& mPeers;
    DeathWatch& mDeaths;
    CallQueues& mQueues;
    Question mNext;  // not asked yet
    bool mAsking = false;
};

}  // namespace android::host::dbus
