#pragma once

#include <sys/types.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "BusLink.h"

namespace android::host::dbus {

class BusCall;
class PeerChannel;

/** Another process on the bus, known by its unique name, which the bus never gives out again. */
struct Peer {
    Peer(BusLink& link, const std::string& uniqueName);
    ~Peer();

    /** True at most once a second, so that many bad messages do not make as many log lines. */
    bool mayLog();

    /** Made at its first use: many processes are only heard of. On any thread. */
    const std::shared_ptr<BusLink::Destination>& destination();

    /** The channel to send it everything on; null if that goes over the bus. On any thread. */
    std::shared_ptr<PeerChannel> direct() const;
    /** Sends on a channel from now on. On the link's thread, once. */
    void useChannel(std::shared_ptr<PeerChannel> used);

    const std::string name;

    std::atomic<bool> dead{false};

    // One of the two has offered the other one a channel.
    std::atomic<bool> channelOffered{false};

    // About the memory of an object of another process, with its proxy. Those of owners that are
    // not known count twice, once with the call and once until they are, and take no more.
    static constexpr size_t kObjectCost = 512;

    // What it has sent that no thread of the pool has taken yet, or whose owners are not known yet.
    std::atomic<size_t> waitingCalls{0};
    std::atomic<size_t> waitingBytes{0};

    // How many holds it has on each object of this process. Guarded by the lock of SharedObjects.
    std::map<uint64_t, uint64_t> holds;

    // The rest is used by the link's thread only. Calls wait until pid and uid are known.
    bool known = false;  // it has sent something, or the bus was asked whether it lives
    bool asked = false;
    bool identified = false;
    pid_t pid = 0;
    uid_t uid = static_cast<uid_t>(-1);
    std::vector<std::unique_ptr<BusCall>> unidentified;
    std::chrono::steady_clock::time_point lastLogged{};
    std::shared_ptr<PeerChannel> channel;  // also when it is closed; others read it by direct()

  private:
    BusLink& mLink;
    std::atomic<bool> mUsesChannel{false};
    std::once_flag mAddressed;
    std::shared_ptr<BusLink::Destination> mDestination;
};

}  // namespace android::host::dbus
