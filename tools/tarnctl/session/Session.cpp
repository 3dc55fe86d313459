#include "tools/tarnctl/session/Session.h"

#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <mutex>
#include <utility>
#include <vector>

#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/session/LibraryLog.h"

namespace tarnctl {

using android::sp;
using vendor::zunt::hwtarn::V1_0::IHwTarn;

namespace {

constexpr char kNoAnswer[] = "the hardware service did not answer";

/** A manager and its controllers hold each other forever; this keeps them in sight. */
sp<TracingManager> newManager() {
    static std::mutex lock;
    static auto* kept = new std::vector<sp<TracingManager>>;
    std::lock_guard<std::mutex> guard(lock);
    kept->push_back(new TracingManager);
    return kept->back();
}

/** What a search for the service found. */
struct Search {
    bool published;              // somebody has its name, though perhaps doesn't answer
    sp<TracingManager> manager;  // null without an answer
};

Search searchService() {
    // First who has the name: then a service that dies during the search was there.
    const bool published = isServicePublished();
    if (IHwTarn::getService() == nullptr) return {published, nullptr};
    return {true, newManager()};
}

pid_t processOf(const sp<IHwTarn>& service) {
    if (service == nullptr || !service->isRemote()) return 0;
    pid_t process = -1;
    service->getDebugInfo([&process](const IHwTarn::DebugInfo& info) { process = info.pid; });
    return process;
}

}  // namespace

TracingManager& Session::manager() {
    if (!mConnected) {
        connect();
        mConnected = true;
        if (mCollectEvents) events();
    }
    if (mManager == nullptr) mManager = newManager();
    return *mManager;
}

BoardControl* Session::board() {
    if (mBoard == nullptr && !mBoardSought) {
        if (const pid_t process = servingProcess()) {
            using Found = std::shared_ptr<BoardControl>;
            const auto found = mLimit.run<Found>([process] { return findServedBoard(process); });
            if (!found) refuseWithoutAnswer();
            mBoard = *found;
        }
        mBoardSought = true;
    }
    return mBoard.get();
}

pid_t Session::servingProcess() {
    manager();
    const auto process = mLimit.run<pid_t>([] { return processOf(IHwTarn::getService()); });
    if (!process) refuseWithoutAnswer();
    return *process;
}

EventCollector& Session::events() {
    if (mEvents == nullptr) {
        const sp<TracingManager> manager(&this->manager());
        if (mEvents != nullptr) return *mEvents;
        const auto start =
                mOptions.reconnect ? EventCollector::startReconnecting : EventCollector::start;
        const auto started =
                mLimit.run<sp<EventCollector>>([manager, start] { return start(manager.get()); });
        if (!started) refuseWithoutAnswer();
        mEvents = *started;
    }
    if (mEvents == nullptr) throw Failure(kUnreachable, "the service can't be reached or died");
    return *mEvents;
}

void Session::connect() {
    if (mOptions.wantsOwnBoard()) {
        startBoard();
        if (mBoard == nullptr) throw Failure(kBadUsage, "this tarnctl has no simulated board");
        return;
    }
    takeLibraryWarnings();
    const auto search = mLimit.run<Search>(searchService);
    if (search) mManager = search->manager;
    if (mManager != nullptr) return;
    if (!search) refuseWithoutAnswer();
    if (search->published) throw Failure(kUnreachable, kNoAnswer);
    // Perhaps it was not for want of a service that none was found.
    for (const std::string& warning : takeLibraryWarnings()) mDiagnostics.note(warning);
    if (!mOptions.serviceOnly) startBoard();
    if (mBoard == nullptr) throw Failure(kUnreachable, "there is no hardware service");
    mDiagnostics.note("no hardware service found; using an embedded simulated board");
}

void Session::startBoard() {
    // Its file may be a pipe that nobody writes to.
    using Started = std::shared_ptr<BoardControl>;
    const BoardFiles files{mOptions.boardFile, mOptions.overrideFile};
    const auto started = mLimit.run<Started>([files] { return startEmbeddedBoard(files); });
    if (!started) {
        throw Failure(kUnreachable, mLimit.exceeded("the simulated board did not start"));
    }
    mBoard = *started;
}

void Session::refuseWithoutAnswer() {
    throw Failure(kUnreachable, mLimit.exceeded(kNoAnswer));
}

}  // namespace tarnctl
