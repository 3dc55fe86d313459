// The table of the objects that the carrier shares with other processes, compared with a count of
// who holds what.

#include <binder/Binder.h>
#include <sdbus-c++/sdbus-c++.h>

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "fuzz/support/Check.h"
#include "fuzz/support/Input.h"
#include "fuzz/support/NoLink.h"
#include "host/binder/dbus/SharedObjects.h"

using android::BBinder;
using android::sp;
using android::host::dbus::Peer;
using android::host::dbus::SharedObjects;

namespace tarn::fuzz {

namespace {

constexpr size_t kPeers = 4;
constexpr size_t kObjects = 4;

/** What is known of another process's object that this one has a handle of. */
struct Received {
    const Peer* owner;
    uint64_t object;
    uint32_t holds = 0;
    int pins = 0;
    int proxies = 0;
    bool watched = false;
};

class Session {
  public:
    explicit Session(Input* input) : mInput(*input) {
        for (size_t i = 0; i < kPeers; i++) newPeer(i);
        for (auto& object : mObjects) object = new BBinder;
    }

    void step() {
        Peer& peer = *mPeers[mInput.choice(kPeers)];
        switch (mInput.choice(10)) {
            case 0:
                lend(mInput.choice(kObjects), peer);
                break;
            case 1:
                lendOn(anyNumber(), peer);
                break;
            case 2:
            case 3:
                giveBack(anyNumber(), mInput.byte(), peer);
                break;
            case 4:
                receive(mInput.choice(kPeers), mInput.choice(kObjects));
                break;
            case 5:
                unpin();
                break;
            case 6:
                acquire();
                break;
            case 7:
                release();
                break;
            case 8:
                watch();
                break;
            default:
                die(mInput.choice(kPeers));
        }
        compare();
    }

  private:
    void newPeer(size_t place) {
        mPeers[place] = std::make_shared<Peer>(noLink(), ":1." + std::to_string(++mNames));
    }

    /** A number that an object has or had, or none. */
    uint64_t anyNumber() {
        const size_t which = mInput.choice(kObjects + 1);
        return which < kObjects ? mNumbers[which] : mInput.number<uint64_t>();
    }

    void lend(size_t which, Peer& holder) {
        const uint64_t number = mTable.lend(mObjects[which], holder);
        const bool isLent = holdsOn(mNumbers[which]) > 0;
        if (isLent) check(number == mNumbers[which], "an object that is lent has another number");
        mNumbers[which] = number;
        mHolds[number][&holder]++;
    }

    void lendOn(uint64_t number, Peer& holder) {
        const bool isLent = holdsOn(number) > 0;
        check(mTable.lendOn(number, holder) == isLent, "whether an object can be lent on");
        if (isLent) mHolds[number][&holder]++;
    }

    void giveBack(uint64_t number, uint64_t count, Peer& holder) {
        SharedObjects::Objects released;
        mTable.giveBack(number, count, holder, &released);
        const uint64_t held = mHolds[number][&holder];
        const bool last = held > 0 && count >= held && holdsOn(number) == held;
        mHolds[number][&holder] = held - std::min(held, count);
        check(released.size() == (last ? 1 : 0), "whether an object was released");
    }

    uint64_t holdsOn(uint64_t number) {
        uint64_t all = 0;
        for (const auto& [holder, count] : mHolds[number]) all += count;
        return all;
    }

    void receive(size_t owner, uint64_t object) {
        const std::shared_ptr<Peer>& peer = mPeers[owner];
        const int32_t handle = mTable.receive(peer, object);
        check(handle > 0, "a handle is not positive");
        const auto known = mReceived.try_emplace(handle, Received{peer.get(), object}).first;
        check(known->second.owner == peer.get() && known->second.object == object,
              "a handle stands for two objects");
        known->second.holds++;
        known->second.pins++;
    }

    /** One of the handles that are in use and pass; 0 if none does. */
    template <typename Passes>
    int32_t handleThat(const Passes& passes) {
        std::vector<int32_t> handles;
        for (const auto& [handle, received] : mReceived) {
            if (passes(received)) handles.push_back(handle);
        }
        return handles.empty() ? 0 : handles[mInput.byte() % handles.size()];
    }

    void unpin() {
        const int32_t handle =
                handleThat([](const Received& received) { return received.pins > 0; });
        if (handle == 0) return;
        mReceived[handle].pins--;
        freed(handle, mTable.unpin(handle));
    }

    void acquire() {
        const int32_t handle = handleThat([](const Received&) { return true; });
        mTable.acquire(handle);
        if (handle != 0) mReceived[handle].proxies++;
    }

    void release() {
        const int32_t handle =
                handleThat([](const Received& received) { return received.proxies > 0; });
        if (handle == 0) return check(!mTable.release(0), "no handle was freed");
        mReceived[handle].proxies--;
        freed(handle, mTable.release(handle));
    }

    void freed(int32_t handle, const std::optional<SharedObjects::Holds>& holds) {
        const Received& received = mReceived[handle];
        const bool unused = received.pins == 0 && received.proxies == 0;
        check(holds.has_value() == unused, "whether a handle was freed");
        if (!unused) return;
        check(holds->remote.owner.get() == received.owner &&
                      holds->remote.object == received.object && holds->count == received.holds,
              "what is given back");
        mReceived.erase(handle);
    }

    void watch() {
        const int32_t handle = handleThat([](const Received&) { return true; });
        const bool wanted = mInput.flag();
        if (!wanted) {
            mTable.unwatch(handle);
            if (handle != 0) mReceived[handle].watched = false;
            return;
        }
        const bool lives = handle != 0 && !mReceived[handle].owner->dead;
        check(mTable.watch(handle) == lives, "whether a death can be waited for");
        if (lives) mReceived[handle].watched = true;
    }

    void die(size_t which) {
        const std::shared_ptr<Peer> peer = mPeers[which];
        size_t last = 0;
        for (auto& [number, holders] : mHolds) {
            const uint64_t before = holdsOn(number);
            holders.erase(peer.get());
            if (before > 0 && holdsOn(number) == 0) last++;
        }
        SharedObjects::Objects released;
        const std::vector<int32_t> handles = mTable.peerDied(*peer, &released);
        check(released.size() == last, "how many objects were released");
        std::vector<int32_t> expected;
        for (auto& [handle, received] : mReceived) {
            if (received.owner != peer.get() || !received.watched) continue;
            expected.push_back(handle);
            received.pins++;
        }
        check(handles == expected, "whose death is told");
        check(mTable.lend(mObjects[0], *peer) == 0, "an object was lent to the dead");
        mDead.push_back(peer);
        newPeer(which);
    }

    void compare() {
        size_t lent = 0;
        size_t holds = 0;
        for (const auto& [number, holders] : mHolds) {
            const uint64_t all = holdsOn(number);
            if (all > 0) lent++;
            holds += all;
            check((mTable.find(number) != nullptr) == (all > 0), "whether an object is found");
        }
        const SharedObjects::Counts counts = mTable.counts();
        check(counts.lent == lent && counts.holds == holds, "how much is lent");
        check(counts.remotes == mReceived.size(), "how many objects of others there are");
        for (const auto& [handle, received] : mReceived) {
            const auto remote = mTable.remote(handle);
            check(remote && remote->owner.get() == received.owner &&
                          remote->object == received.object,
                  "what a handle stands for");
        }
    }

    Input& mInput;
    SharedObjects mTable;
    std::array<std::shared_ptr<Peer>, kPeers> mPeers;
    std::array<sp<BBinder>, kObjects> mObjects;
    std::array<uint64_t, kObjects> mNumbers{};
    std::vector<std::shared_ptr<Peer>> mDead;
    std::map<uint64_t, std::map<const Peer*, uint64_t>> mHolds;
    std::map<int32_t, Received> mReceived;
    size_t mNames = 0;
};

}  // namespace

}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    tarn::fuzz::Input input(data, size);
    tarn::fuzz::Session session(&input);
    while (!input.empty()) session.step();
    return 0;
}
