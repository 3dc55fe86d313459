#include "CallQueue.h"

#include <utility>

namespace android::host::dbus {

namespace {

// About the memory of a proxy.
constexpr size_t kObjectCost = 256;

size_t sizeOf(const BusCall& call) {
    return call.request.bytes.size() + call.request.objects.size() * kObjectCost;
}

}  // namespace

bool CallQueue::admit(const BusCall& call) {
    Peer& caller = *call.caller;
    const size_t size = sizeOf(call);
    if (caller.waitingCalls >= kMaxWaitingCalls || caller.waitingBytes + size > kMaxWaitingBytes) {
        return false;
    }
    caller.waitingCalls++;
    caller.waitingBytes += size;
    return true;
}

void CallQueue::add(std::unique_ptr<BusCall> call) {
    std::lock_guard<std::mutex> lock(mLock);
    if (call->isOneWay()) {
        const auto [lane, opened] = mLanes.try_emplace(call->object);
        if (!opened) {
            lane->second.push_back(std::move(call));
            return;
        }
    }
    makeReady(std::move(call));
}

void CallQueue::makeReady(std::unique_ptr<BusCall> call) {
    if (call->isOneWay()) call->mQueue = this;
    mReady.emplace_back(std::move(call));
    mArrived.notify_one();
}

void CallQueue::leaveLane(uint64_t object) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto lane = mLanes.find(object);
    if (lane->second.empty()) {
        mLanes.erase(lane);
        return;
    }
    std::unique_ptr<BusCall> next = std::move(lane->second.front());
    lane->second.pop_front();
    makeReady(std::move(next));
}

void CallQueue::add(Task task) {
    std::lock_guard<std::mutex> lock(mLock);
    mReady.emplace_back(std::move(task));
    mArrived.notify_one();
}

std::optional<PoolWork> CallQueue::take() {
    std::unique_lock<std::mutex> lock(mLock);
    mArrived.wait(lock, [this] { return mStopped || !mReady.empty(); });
    if (mStopped) return std::nullopt;
    auto next = std::move(mReady.front());
    mReady.pop_front();
    if (auto* task = std::get_if<Task>(&next); task != nullptr) return std::move(*task);
    auto& call = std::get<std::unique_ptr<BusCall>>(next);
    call->caller->waitingCalls--;
    call->caller->waitingBytes -= sizeOf(*call);
    return std::unique_ptr<IncomingCall>(std::move(call));
}

void CallQueue::stop() {
    std::lock_guard<std::mutex> lock(mLock);
    mStopped = true;
    mArrived.notify_all();
}

size_t CallQueue::size() {
    std::lock_guard<std::mutex> lock(mLock);
    size_t waiting = mReady.size();
    for (const auto& lane : mLanes) waiting += lane.second.size();
    return waiting;
}

}  // namespace android::host::dbus
