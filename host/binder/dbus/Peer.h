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

/** Another process on the bus, known by its unique name, which the bus never gives out again. */
struct Peer {
    Peer(BusLink& link, const std::string& uniqueName);
    ~Peer();

    /** True at most once a second, so that many bad messages do not make as many log lines. */
    bool mayLog();

    /** Made at its first use: many processes are only heard of. On any thread. */
    const std::shared_ptr<BusLink::Destination>& destination();

    const std::string name;

    std::atomic<bool> dead{false};

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

  private:
    BusLink& mLink;
    std::once_flag mAddressed;
    std::shared_ptr<BusLink::Destination> mDestination;
};

}  // namespace android::host::dbus
