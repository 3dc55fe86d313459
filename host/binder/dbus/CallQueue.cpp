#include "CallQueue.h"

#include <utility>

namespace android::host::dbus {

namespace {

// What a proxy costs, about.
constexpr size_t kObjectCost = 256;

size_t sizeOf(const BusCall& call) {
    return call.request.bytes.size() + call.request.objects.size() * kObjectCost;
}

class Errand : public IncomingCall {
  public:
    explicit Errand(std::function<void()> work) { errand = std::move(work); }
    void answer(status_t /*status*/, Payload /*reply*/) override {}
};

}  // namespace

BusCall::BusCall(sdbus::MethodCall received, std::shared_ptr<Peer> sender, Responder responder)
    : message(std::move(received)), caller(std::move(sender)), mResponder(std::move(responder)) {}

BusCall::~BusCall() {
    if (!mAnswered && !isOneWay()) mResponder(*this, UNKNOWN_ERROR, Payload());
    if (mQueue != nullptr) mQueue->leaveLane(object);
}

void BusCall::answer(status_t status, Payload reply) {
    mAnswered = true;
    mResponder(*this, status, std::move(reply));
}

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
    mReady.push_back(std::move(call));
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

void CallQueue::addErrand(std::function<void()> errand) {
    std::lock_guard<std::mutex> lock(mLock);
    mReady.push_back(std::make_unique<Errand>(std::move(errand)));
    mArrived.notify_one();
}

std::unique_ptr<IncomingCall> CallQueue::take() {
    std::unique_lock<std::mutex> lock(mLock);
    mArrived.wait(lock, [this] { return mStopped || !mReady.empty(); });
    if (mStopped) return nullptr;
    std::unique_ptr<IncomingCall> next = std::move(mReady.front());
    mReady.pop_front();
    if (const auto* call = dynamic_cast<BusCall*>(next.get()); call != nullptr) {
        call->caller->waitingCalls--;
        call->caller->waitingBytes -= sizeOf(*call);
    }
    return next;
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
