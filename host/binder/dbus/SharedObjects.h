#pragma once

#include <binder/Binder.h>

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "Peer.h"
#include "host/binder/carrier/Carrier.h"

namespace android::host::dbus {

/**
 * The objects that this process shares with others: its own that it lent to them, and theirs that
 * it has proxies of. Only counts; the callers send the messages.
 *
 * A hold is one sending of a reference: the owner counts, by process, how many it sent, and a
 * process that no longer needs an object gives back as many as it received. So a reference that is
 * on its way while others are given back is never lost. An object is kept while any process has a
 * hold on it; when a process dies, all of its holds end.
 *
 * An object's number is random, but for its lowest bit: that is set if the object is HIDL's, so
 * that both sides know which threads its calls and its death concern.
 *
 * References that a function removes are handed to its caller (`released`): an object's destructor
 * must not run with the lock held, nor on the link's thread.
 */
class SharedObjects {
  public:
    using Objects = std::vector<sp<IBinder>>;

    /** An object of another process. */
    struct Remote {
        std::shared_ptr<Peer> owner;
        uint64_t object;
    };

    /** So many holds on an object of another process. */
    struct Holds {
        Remote remote;
        uint32_t count;
    };

    /** The domain of an object of this process, and of any object by its number. */
    static Domain domainOf(const sp<IBinder>& object);
    static Domain domainOf(uint64_t number);

    /** Adds a hold on an object of this process and gives its number; 0 if the holder is dead. */
    uint64_t lend(const sp<BBinder>& object, Peer& holder);
    /** The same for an object that was lent before; false if none has this number. */
    bool lendOn(uint64_t object, Peer& holder);
    void giveBack(uint64_t object, uint64_t count, Peer& holder, Objects* released);
    bool holds(uint64_t object, const Peer& holder);

    /** The object that was lent under this number; null if there is none. */
    sp<BBinder> find(uint64_t object);

    /**
     * Counts a hold on another process's object that came in, and pins its handle: the handle
     * stays valid, even without a proxy, until unpin().
     */
    int32_t receive(const std::shared_ptr<Peer>& owner, uint64_t object);
    std::optional<Holds> unpin(int32_t handle);

    void acquire(int32_t handle);
    std::optional<Holds> release(int32_t handle);

    /** Has peerDied() give a handle, or no longer; false if its object's process is dead already.
     */
    bool watch(int32_t handle);
    void unwatch(int32_t handle);

    /** The object of a handle; none if the handle is not in use. */
    std::optional<Remote> remote(int32_t handle);

    /** Ends a process's holds. Gives the watched handles of its objects, each pinned once. */
    std::vector<int32_t> peerDied(Peer& peer, Objects* released);

    struct Counts {
        size_t lent;     // objects of this process that others hold
        size_t holds;    // all holds on them
        size_t remotes;  // objects of others that this process holds
    };
    Counts counts();

  private:
    struct Lent {
        sp<BBinder> object;
        uint64_t holds = 0;
    };
    struct Received {
        Remote remote;
        uint32_t holds = 0;
        int32_t proxies = 0;
        int32_t pins = 0;
        bool watched = false;
    };

    void addHold(uint64_t object, Lent& lent, Peer& holder);
    void dropHolds(std::map<uint64_t, Lent>::iterator lent, uint64_t count, Objects* released);
    std::optional<Holds> freeIfUnused(std::map<int32_t, Received>::iterator received);
    int32_t newHandle();

    std::mutex mLock;
    std::map<uint64_t, Lent> mLent;
    std::map<const BBinder*, uint64_t> mNumbers;
    std::map<int32_t, Received> mReceived;
    std::map<std::pair<std::string, uint64_t>, int32_t> mHandles;
    std::set<int32_t> mFreeHandles;
};

}  // namespace android::host::dbus
