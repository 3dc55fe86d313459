#include "tools/tarnctl/cli/Session.h"

#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <mutex>
#include <vector>

#include "tools/tarnctl/cli/Failure.h"

namespace tarnctl {

using android::sp;
using vendor::zunt::hwtarn::V1_0::IHwTarn;

namespace {

/** A manager and its controllers hold each other for ever; this keeps them in sight. */
sp<TracingManager> newManager() {
    static std::mutex lock;
    static auto* kept = new std::vector<sp<TracingManager>>;
    std::lock_guard<std::mutex> guard(lock);
    kept->push_back(new TracingManager);
    return kept->back();
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

BoardLink* Session::board() {
    manager();
    if (mBoard == nullptr && !mBoardSought) {
        mBoardSought = true;
        if (const pid_t process = servingProcess()) mBoard = findServedBoard(process);
    }
    return mBoard.get();
}

pid_t Session::servingProcess() {
    manager();
    const sp<IHwTarn> service = IHwTarn::getService();
    if (service == nullptr || !service->isRemote()) return 0;
    pid_t process = -1;
    service->getDebugInfo([&process](const IHwTarn::DebugInfo& info) { process = info.pid; });
    return process;
}

EventCollector& Session::events() {
    if (mEvents == nullptr) mEvents = EventCollector::start(&manager());
    if (mEvents == nullptr) throw Failure(kUnreachable, "the service can't be reached or died");
    return *mEvents;
}

void Session::connect() {
    if (mOptions.wantsOwnBoard()) {
        startBoard();
        if (mBoard == nullptr) throw Failure(kBadUsage, "this tarnctl has no simulated board");
        return;
    }
    mManager = newManager();
    if (mManager->isTarnReady() == 0) return;
    if (!mOptions.serviceOnly) startBoard();
    if (mBoard == nullptr) throw Failure(kUnreachable, "there is no hardware service");
    mDiagnostics.note("no hardware service found; using an embedded simulated board");
}

void Session::startBoard() {
    try {
        mBoard = startEmbeddedBoard(BoardFiles{mOptions.boardFile, mOptions.overrideFile});
    } catch (const std::runtime_error& error) {
        const bool chosen = !mOptions.boardFile.empty() || !mOptions.overrideFile.empty();
        throw Failure(chosen ? kBadUsage : kUnreachable,
                      std::string("the simulated board can't be started:\n") + error.what());
    }
}

}  // namespace tarnctl
