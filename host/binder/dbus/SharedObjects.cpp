#define LOG_TAG "BinderBus"

#include "SharedObjects.h"

#include <log/log.h>
#include <sys/random.h>

#include <algorithm>

#include "host/HwBinder.h"

namespace android::host::dbus {

namespace {

constexpr uint64_t kHwBit = 1;

// A process that knows the number can call the object, so it must not be guessable.
uint64_t newNumber(Domain domain) {
    uint64_t number = 0;
    const ssize_t got = getrandom(&number, sizeof(number), 0);
    LOG_ALWAYS_FATAL_IF(got != sizeof(number), "no random numbers");
    return domain == Domain::HWBINDER ? number | kHwBit : number & ~kHwBit;
}

}  // namespace

Domain SharedObjects::domainOf(const sp<IBinder>& object) {
    return object->checkSubclass(hwObjectId()) ? Domain::HWBINDER : Domain::BINDER;
}

Domain SharedObjects::domainOf(uint64_t number) {
    return (number & kHwBit) != 0 ? Domain::HWBINDER : Domain::BINDER;
}

uint64_t SharedObjects::lend(const sp<BBinder>& object, Peer& holder) {
    const Domain domain = domainOf(object);
    std::lock_guard<std::mutex> lock(mLock);
    if (holder.dead) return 0;
    const auto known = mNumbers.find(object.get());
    uint64_t number = known != mNumbers.end() ? known->second : 0;
    while (number == 0 || (known == mNumbers.end() && mLent.count(number) > 0)) {
        number = newNumber(domain);
    }
    mNumbers[object.get()] = number;
    Lent& lent = mLent[number];
    lent.object = object;
    addHold(number, lent, holder);
    return number;
}

bool SharedObjects::lendOn(uint64_t object, Peer& holder) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto lent = mLent.find(object);
    if (lent == mLent.end()) return false;
    if (!holder.dead) addHold(object, lent->second, holder);
    return true;
}

void SharedObjects::addHold(uint64_t object, Lent& lent, Peer& holder) {
    holder.holds[object]++;
    lent.holds++;
}

void SharedObjects::giveBack(uint64_t object, uint64_t count, Peer& holder, Objects* released) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto held = holder.holds.find(object);
    if (held == holder.holds.end()) return;
    const uint64_t given = std::min(count, held->second);
    held->second -= given;
    if (held->second == 0) holder.holds.erase(held);
    dropHolds(mLent.find(object), given, released);
}

bool SharedObjects::holds(uint64_t object, const Peer& holder) {
    std::lock_guard<std::mutex> lock(mLock);
    return holder.holds.count(object) != 0;
}

void SharedObjects::dropHolds(std::map<uint64_t, Lent>::iterator lent, uint64_t count,
                              Objects* released) {
    lent->second.holds -= count;
    if (lent->second.holds > 0) return;
    mNumbers.erase(lent->second.object.get());
    released->push_back(std::move(lent->second.object));
    mLent.erase(lent);
}

sp<BBinder> SharedObjects::find(uint64_t object) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto lent = mLent.find(object);
    return lent != mLent.end() ? lent->second.object : nullptr;
}

int32_t SharedObjects::newHandle() {
    if (mFreeHandles.empty()) return static_cast<int32_t>(mReceived.size()) + 1;
    const int32_t handle = *mFreeHandles.begin();
    mFreeHandles.erase(mFreeHandles.begin());
    return handle;
}

int32_t SharedObjects::receive(const std::shared_ptr<Peer>& owner, uint64_t object) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto [handle, isNew] = mHandles.try_emplace({owner->name, object}, 0);
    if (isNew) {
        handle->second = newHandle();
        mReceived[handle->second].remote = {owner, object};
    }
    Received& received = mReceived[handle->second];
    received.holds++;
    received.pins++;
    return handle->second;
}

std::optional<SharedObjects::Holds> SharedObjects::unpin(int32_t handle) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto received = mReceived.find(handle);
    received->second.pins--;
    return freeIfUnused(received);
}

void SharedObjects::acquire(int32_t handle) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto received = mReceived.find(handle);
    if (received != mReceived.end()) received->second.proxies++;
}

std::optional<SharedObjects::Holds> SharedObjects::release(int32_t handle) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto received = mReceived.find(handle);
    if (received == mReceived.end()) return std::nullopt;
    received->second.proxies--;
    return freeIfUnused(received);
}

std::optional<SharedObjects::Holds> SharedObjects::freeIfUnused(
        std::map<int32_t, Received>::iterator received) {
    if (received->second.pins > 0 || received->second.proxies > 0) return std::nullopt;
    Holds holds{std::move(received->second.remote), received->second.holds};
    mHandles.erase({holds.remote.owner->name, holds.remote.object});
    mFreeHandles.insert(received->first);
    mReceived.erase(received);
    return holds;
}

std::optional<SharedObjects::Remote> SharedObjects::remote(int32_t handle) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto received = mReceived.find(handle);
    if (received == mReceived.end()) return std::nullopt;
    return received->second.remote;
}

bool SharedObjects::watch(int32_t handle) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto received = mReceived.find(handle);
    if (received == mReceived.end() || received->second.remote.owner->dead) return false;
    received->second.watched = true;
    return true;
}

void SharedObjects::unwatch(int32_t handle) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto received = mReceived.find(handle);
    if (received != mReceived.end()) received->second.watched = false;
}

std::vector<int32_t> SharedObjects::peerDied(Peer& peer, Objects* released) {
    std::lock_guard<std::mutex> lock(mLock);
    peer.dead = true;
    for (const auto& [object, count] : peer.holds) {
        dropHolds(mLent.find(object), count, released);
    }
    peer.holds.clear();
    std::vector<int32_t> handles;
    for (auto known = mHandles.lower_bound({peer.name, 0});
         known != mHandles.end() && known->first.first == peer.name; ++known) {
        Received& received = mReceived[known->second];
        if (received.remote.owner.get() != &peer || !received.watched) continue;
        received.pins++;
        handles.push_back(known->second);
    }
    std::sort(handles.begin(), handles.end());
    return handles;
}

SharedObjects::Counts SharedObjects::counts() {
    std::lock_guard<std::mutex> lock(mLock);
    size_t holds = 0;
    for (const auto& lent : mLent) holds += lent.second.holds;
    return {mLent.size(), holds, mReceived.size()};
}

}  // namespace android::host::dbus
