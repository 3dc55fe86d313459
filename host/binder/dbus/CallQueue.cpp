#include "CallQueue.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace android::host::dbus {

namespace {

// About the memory of a call without its bytes and objects; most of it is the reply and the error
// in its place.
constexpr size_t kOneWayCost = 320;
constexpr size_t kCallCost = 2304;

}  // namespace

bool CallQueue::admit(BusCall& call, size_t bytes, size_t objects) {
    Peer& caller = *call.caller;
    const size_t size =
            (call.isOneWay() ? kOneWayCost : kCallCost) + bytes + objects * Peer::kObjectCost;
    if (caller.waitingCalls >= kMaxWaitingCalls || caller.waitingBytes + size > kMaxWaitingBytes) {
        return false;
    }
    caller.waitingCalls++;
    caller.waitingBytes += size;
    call.mCost = size;
    return true;
}

std::list<CallQueue::Line>::iterator CallQueue::Lane::find(const Peer* sender) {
    return std::find_if(lines.begin(), lines.end(),
                        [sender](const Line& line) { return line.sender == sender; });
}

void CallQueue::add(std::unique_ptr<BusCall> call) {
    std::lock_guard<std::mutex> lock(mLock);
    mWaiting++;
    const Peer* const sender = call->caller.get();
    if (!call->isOneWay()) {
        makeReady(sender, std::move(call));
        return;
    }
    auto& lane = *mLanes.try_emplace(call->object).first;
    join(lane, sender, std::move(call));
}

void CallQueue::add(Task task) {
    std::lock_guard<std::mutex> lock(mLock);
    mWaiting++;
    makeReady(kOwn, std::move(task));
}

void CallQueue::makeReady(const Peer* sender, Ready ready) {
    mReady.add(sender, std::move(ready));
    mArrived.notify_one();
}

void CallQueue::join(Lanes::value_type& lane, const Peer* sender, std::unique_ptr<BusCall> call) {
    auto line = lane.second.find(sender);
    if (line == lane.second.lines.end()) {
        line = lane.second.lines.insert(line, Line{sender, {}, false});
    }
    line->calls.push_back(std::move(call));
    giveTicket(lane, *line);
}

// While a call of the lane is served there are no new tickets: leaveLane() gives them.
void CallQueue::giveTicket(const Lanes::value_type& lane, Line& line) {
    if (lane.second.busy || line.hasTicket) return;
    line.hasTicket = true;
    makeReady(line.sender, Ticket{lane.first, line.sender});
}

// Null if another sender's call is being served.
std::unique_ptr<BusCall> CallQueue::redeem(const Ticket& ticket) {
    Lane& lane = mLanes.find(ticket.object)->second;
    const auto line = lane.find(ticket.sender);
    line->hasTicket = false;
    if (lane.busy) return nullptr;
    std::unique_ptr<BusCall> call = std::move(line->calls.front());
    line->calls.pop_front();
    if (line->calls.empty()) {
        lane.lines.erase(line);
    } else {
        lane.lines.splice(lane.lines.end(), lane.lines, line);
    }
    if (ticket.sender == kOwn) {
        mLastCalls--;
        mLastBytes -= call->mCost;
    }
    lane.busy = true;
    call->mQueue = this;
    return call;
}

void CallQueue::leaveLane(uint64_t object) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto lane = mLanes.find(object);
    lane->second.busy = false;
    for (Line& line : lane->second.lines) giveTicket(*lane, line);
    if (lane->second.lines.empty()) mLanes.erase(lane);
}

std::optional<PoolWork> CallQueue::take() {
    std::unique_lock<std::mutex> lock(mLock);
    for (;;) {
        mArrived.wait(lock, [this] { return mStopped || !mReady.empty(); });
        if (mStopped) return std::nullopt;
        Ready next = mReady.take();
        if (auto* task = std::get_if<Task>(&next); task != nullptr) {
            mWaiting--;
            return std::move(*task);
        }
        const auto* ticket = std::get_if<Ticket>(&next);
        std::unique_ptr<BusCall> call =
                ticket != nullptr ? redeem(*ticket)
                                  : std::move(std::get<std::unique_ptr<BusCall>>(next));
        if (call == nullptr) {
            mReady.repeat(ticket->sender);
            continue;
        }
        mWaiting--;
        dismiss(*call);
        return std::unique_ptr<IncomingCall>(std::move(call));
    }
}

void CallQueue::dismiss(const BusCall& call) {
    call.caller->waitingCalls--;
    call.caller->waitingBytes -= call.mCost;
}

CallQueue::Calls CallQueue::senderLeft(const Peer& sender) {
    Calls dropped;
    if (sender.waitingCalls == 0) return dropped;
    std::lock_guard<std::mutex> lock(mLock);
    for (Ready& ready : mReady.remove(&sender)) {
        if (auto* call = std::get_if<std::unique_ptr<BusCall>>(&ready); call != nullptr) {
            dropped.push_back(std::move(*call));
        } else {
            keepLast(*mLanes.find(std::get<Ticket>(ready).object), sender, &dropped);
        }
    }
    for (auto lane = mLanes.begin(); lane != mLanes.end();) {
        keepLast(*lane, sender, &dropped);
        const bool idle = !lane->second.busy && lane->second.lines.empty();
        lane = idle ? mLanes.erase(lane) : std::next(lane);
    }
    mWaiting -= dropped.size();
    for (const std::unique_ptr<BusCall>& call : dropped) dismiss(*call);
    return dropped;
}

void CallQueue::keepLast(Lanes::value_type& lane, const Peer& sender, Calls* dropped) {
    const auto found = lane.second.find(&sender);
    if (found == lane.second.lines.end()) return;
    std::deque<std::unique_ptr<BusCall>> calls = std::move(found->calls);
    lane.second.lines.erase(found);
    bool full = false;
    for (std::unique_ptr<BusCall>& call : calls) {
        const size_t size = call->mCost;
        full = full || mLastCalls == kMaxLastCalls || mLastBytes + size > kMaxLastBytes;
        if (full) {
            dropped->push_back(std::move(call));
        } else {
            mLastCalls++;
            mLastBytes += size;
            join(lane, kOwn, std::move(call));
        }
    }
}

void CallQueue::stop() {
    std::lock_guard<std::mutex> lock(mLock);
    mStopped = true;
    mArrived.notify_all();
}

size_t CallQueue::size() {
    std::lock_guard<std::mutex> lock(mLock);
    return mWaiting;
}

}  // namespace android::host::dbus
