#pragma once

#include <sdbus-c++/sdbus-c++.h>

#include <atomic>
#include <map>
#include <memory>

#include "BusLink.h"
#include "Peer.h"
#include "PeerChannel.h"

namespace android::host::dbus {

class CallReceiver;
class DeathWatch;
class ObjectExchange;
class PeerDirectory;

/**
 * The channels to other processes: opens and accepts them, hands on what comes in, and ends them.
 * The README says how two processes agree on one.
 */
class Channels {
  public:
    /** The most channels that a process has; with further processes it speaks on the bus. */
    static constexpr size_t kMaxChannels = 256;

    Channels(BusLink& link, PeerDirectory& peers, ObjectExchange& exchange, CallReceiver& receiver,
             DeathWatch& deaths);
    ~Channels();

    /** Offers a process a channel, unless there was an offer before. On any thread. */
    void open(const std::shared_ptr<Peer>& peer);

    size_t count() const { return mCount; }

    // On the link's thread.

    /** The methods OpenChannel and UseChannel; they throw sdbus::Error at a malformed message. */
    void onOpen(sdbus::MethodCall& call, const std::shared_ptr<Peer>& caller);
    void onUse(Peer& caller);

    /** A process died: hands on what is left in its channel, which comes before its death. */
    void readRest(const Peer& peer);
    /** Closes the channel; the calls that wait on it end without an answer. */
    void end(const Peer& peer);

  private:
    class Entry;

    void onOpened(const std::shared_ptr<Peer>& peer, const std::shared_ptr<PeerChannel>& channel);
    void use(const std::shared_ptr<Peer>& peer, const std::shared_ptr<PeerChannel>& channel,
             bool isOwn);
    const char* objection(const Peer& caller, const sdbus::UnixFd& socket, bool isOffered) const;
    void askWhetherAlive(const std::shared_ptr<Peer>& peer);
    std::shared_ptr<Entry> find(const Peer& peer) const;

    const bool mAllowed;
    BusLink& mLink;
    PeerDirectory& mPeers;
    ObjectExchange& mExchange;
    CallReceiver& mReceiver;
    DeathWatch& mDeaths;
    std::map<const Peer*, std::shared_ptr<Entry>> mEntries;  // the link's thread's
    std::atomic<size_t> mCount{0};
};

}  // namespace android::host::dbus
