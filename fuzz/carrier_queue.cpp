// The queue of calls and tasks that the carrier's threads work off, with processes that come and
// go: everything that comes in comes out once, in the order that it has to keep.

#include <sdbus-c++/sdbus-c++.h>

#include <algorithm>
#include <array>
#include <deque>
#include <memory>
#include <vector>

#include "fuzz/support/Check.h"
#include "fuzz/support/Input.h"
#include "fuzz/support/NoLink.h"
#include "host/binder/dbus/BusCall.h"
#include "host/binder/dbus/CallQueue.h"

using android::status_t;
using android::host::IncomingCall;
using android::host::Payload;
using android::host::PoolWork;
using android::host::Task;
using android::host::dbus::BusCall;
using android::host::dbus::CallQueue;
using android::host::dbus::Peer;

namespace {

bool gOneWay = false;

}  // namespace

// There is no bus and no message: a call is what the fuzzer says it is.

bool sdbus::MethodCall::doesntExpectReply() const {
    return gOneWay;
}

sdbus::MethodReply sdbus::MethodCall::createReply() const {
    return {};
}

sdbus::MethodReply sdbus::MethodCall::createErrorReply(const Error&) const {
    return {};
}

namespace tarn::fuzz {

namespace {

constexpr size_t kPeers = 4;
constexpr size_t kObjects = 3;
constexpr size_t kMostWaiting = 300;

/** What is known of a call or a task that waits. */
struct Waiting {
    uint32_t number;
    const Peer* sender;  // null for a task, and for a one-way call whose sender has left
    bool oneWay;
    uint64_t object;
};

class Session {
  public:
    explicit Session(Input* input) : mInput(*input) {
        for (auto& peer : mPeers) peer = newPeer();
    }

    ~Session() {
        while (!mServed.empty()) endServing(0);
        while (canTake()) {
            take();
            while (!mServed.empty()) endServing(0);
        }
        check(mWaiting.empty() && mQueue.size() == 0, "something never came out");
    }

    void step() {
        switch (mInput.choice(6)) {
            case 0:
            case 1:
                addCall();
                break;
            case 2:
                addTask();
                break;
            case 3:
                if (canTake()) take();
                break;
            case 4:
                if (!mServed.empty()) endServing(mInput.choice(mServed.size()));
                break;
            default:
                leave(mInput.choice(kPeers));
        }
        check(mQueue.size() == mWaiting.size(), "how many wait");
        for (const auto& peer : mPeers) {
            check(peer->waitingCalls == countOf(peer.get()), "how many of a process wait");
        }
    }

  private:
    static std::shared_ptr<Peer> newPeer() { return std::make_shared<Peer>(noLink(), ":1.1"); }

    void addCall() {
        if (mWaiting.size() == kMostWaiting) return;
        const std::shared_ptr<Peer>& peer = mPeers[mInput.choice(kPeers)];
        gOneWay = mInput.flag();
        auto call = std::make_unique<BusCall>(sdbus::MethodCall(), peer,
                                              [](BusCall&, status_t, Payload) {});
        call->object = mInput.choice(kObjects);
        call->code = mNext;
        call->request.bytes.resize(mInput.byte() * size_t{64});
        check(CallQueue::admit(*call, call->request.bytes.size(), 0), "a call is not admitted");
        mWaiting.push_back({mNext++, peer.get(), gOneWay, call->object});
        mQueue.add(std::move(call));
    }

    void addTask() {
        if (mWaiting.size() == kMostWaiting) return;
        mWaiting.push_back({mNext, nullptr, false, 0});
        mQueue.add([this, number = mNext] { mRun = number; });
        mNext++;
    }

    /** Whether there is something that may be served now; else the queue would wait. */
    bool canTake() const {
        return std::any_of(mWaiting.begin(), mWaiting.end(), [this](const Waiting& waiting) {
            return !waiting.oneWay || !isBusy(waiting.object);
        });
    }

    bool isBusy(uint64_t object) const {
        return std::any_of(mServed.begin(), mServed.end(), [object](const auto& call) {
            const auto& served = static_cast<const BusCall&>(*call);
            return served.isOneWay() && served.object == object;
        });
    }

    void take() {
        std::optional<PoolWork> work = mQueue.take();
        check(work.has_value(), "a queue that goes on gives nothing");
        if (auto* task = std::get_if<Task>(&*work); task != nullptr) {
            (*task)();
            return cameOut(mRun);
        }
        auto& call = std::get<std::unique_ptr<IncomingCall>>(*work);
        const auto& taken = static_cast<const BusCall&>(*call);
        if (taken.isOneWay()) check(!isBusy(taken.object), "two one-way calls to one object");
        cameOut(call->code);
        mServed.push_back(std::move(call));
    }

    /** The oldest of its kind and sender. */
    void cameOut(uint32_t number) {
        const auto found = find(number);
        const auto ahead = std::find_if(mWaiting.begin(), found, [&found](const Waiting& other) {
            return other.sender == found->sender && other.oneWay == found->oneWay &&
                   other.object == found->object;
        });
        // Calls that are waited for have no order among objects, but tasks and one-way calls have.
        check(ahead == found, "something came out before what is ahead of it");
        mWaiting.erase(found);
    }

    std::deque<Waiting>::iterator find(uint32_t number) {
        const auto found =
                std::find_if(mWaiting.begin(), mWaiting.end(),
                             [number](const Waiting& waiting) { return waiting.number == number; });
        check(found != mWaiting.end(), "something came out twice");
        return found;
    }

    void endServing(size_t which) {
        mServed.erase(mServed.begin() + static_cast<ptrdiff_t>(which));
    }

    /** Whatever the process waits for is dropped; its last one-way calls stay, behind nobody's. */
    void leave(size_t which) {
        std::shared_ptr<Peer>& peer = mPeers[which];
        CallQueue::Calls dropped = mQueue.senderLeft(*peer);
        for (const auto& call : dropped) mWaiting.erase(find(call->code));
        dropped.clear();
        const auto kept = std::stable_partition(
                mWaiting.begin(), mWaiting.end(),
                [&peer](const Waiting& waiting) { return waiting.sender != peer.get(); });
        for (auto waiting = kept; waiting != mWaiting.end(); ++waiting) {
            check(waiting->oneWay, "a call that nobody waits for is kept");
            waiting->sender = nullptr;
        }
        mLeft.push_back(std::exchange(peer, newPeer()));
    }

    size_t countOf(const Peer* peer) const {
        return static_cast<size_t>(
                std::count_if(mWaiting.begin(), mWaiting.end(),
                              [peer](const Waiting& waiting) { return waiting.sender == peer; }));
    }

    Input& mInput;
    CallQueue mQueue;
    std::array<std::shared_ptr<Peer>, kPeers> mPeers;
    std::vector<std::shared_ptr<Peer>> mLeft;
    std::deque<Waiting> mWaiting;
    std::vector<std::unique_ptr<IncomingCall>> mServed;
    uint32_t mNext = 1;
    uint32_t mRun = 0;
};

}  // namespace

}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    tarn::fuzz::Input input(data, size);
    tarn::fuzz::Session session(&input);
    while (!input.empty()) session.step();
    return 0;
}
