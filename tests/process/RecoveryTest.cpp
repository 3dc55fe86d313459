// An application that takes its connection up again, each time that the service's process has
// ended.

#include <binder/Parcel.h>
#include <binder/ProcessState.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <tarn/IAudioCtrl.h>
#include <tarn/ITarnListener.h>
#include <tarn/ITarnService.h>
#include <tarn/TarnClient.h>
#include <tarn/TarnCreator.h>
#include <tarn/TarnRecovery.h>
#include <tarn/TarnService.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "tests/process/BoardProcess.h"
#include "tests/process/ProcessTest.h"

namespace tarn::test {
namespace {

using android::ITarnClientCallback;
using android::ITarnManager;
using android::ITarnRecoveryListener;
using android::ITarnService;
using android::Parcel;
using android::sp;
using android::TarnClient;
using android::TarnCreator;
using android::TarnRecovery;

constexpr int kRestarts = 20;
constexpr unsigned int kVolumeEvent = 0x1402;
constexpr unsigned int kPeriodMs = 20;

class Told : public ITarnRecoveryListener {
  public:
    void serviceLost() override { mLosses++; }
    void serviceBack() override { mReturns++; }

    int losses() const { return mLosses; }
    bool waitForReturn(int number) {
        return eventually([&] { return mReturns == number; });
    }
    bool waitForLoss(int number) {
        return eventually([&] { return mLosses == number; });
    }

  private:
    std::atomic<int> mLosses{0};
    std::atomic<int> mReturns{0};
};

class Listener : public ITarnListener {
  public:
    void notify(unsigned int msgType, int, int, const Parcel* data) override {
        std::lock_guard<std::mutex> guard(mLock);
        mEvents.emplace_back(msgType, data->readInt32());
    }

    using Event = std::pair<unsigned int, int>;
    std::vector<Event> events() {
        std::lock_guard<std::mutex> guard(mLock);
        return mEvents;
    }

  private:
    std::mutex mLock;
    std::vector<Event> mEvents;
};

/** Every other board ends as it should, the rest by a crash. */
void end(std::unique_ptr<BoardProcess>* board, int round) {
    if (round % 2 == 0) {
        (*board)->signal(SIGKILL);
        (*board)->wait();
    }
    board->reset();
}

TEST(Recovery, KeepsAnApplicationAtWorkThroughTwentyRestartsOfItsBoard) {
    auto board = std::make_unique<BoardProcess>();
    ITarnManager* manager = TarnCreator::create();
    // Never destroyed: the event thread may still be leaving its notify().
    static Listener& listener = *new Listener;
    manager->registerListener(&listener);
    android::IAudioCtrl* audio = manager->getAudioCtrl();
    Told told;
    TarnRecovery recovery(manager, TarnRecovery::WITH_EVENTS);
    ASSERT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    ASSERT_EQ(recovery.start(&told, kPeriodMs), 0);
    const size_t threads = runningThreads();
    const size_t descriptors = openDescriptors();

    std::vector<Listener::Event> expected;
    for (int round = 1; round <= kRestarts; round++) {
        end(&board, round);
        // Now and then the new board is there before anybody can have seen that the old one is not.
        if (round % 3 != 0) {
            ASSERT_TRUE(told.waitForLoss(round));
        }
        board = std::make_unique<BoardProcess>();
        ASSERT_TRUE(told.waitForReturn(round)) << "restart " << round;
        EXPECT_EQ(audio->setVolume(round), 0);
        EXPECT_EQ(audio->getVolume(), round);
        expected.emplace_back(kVolumeEvent, round);
        ASSERT_TRUE(eventually([&] { return listener.events().size() >= expected.size(); }))
                << "restart " << round;
    }
    EXPECT_EQ(listener.events(), expected);
    EXPECT_EQ(told.losses(), kRestarts);
    // One event thread stays behind with each connection.
    EXPECT_LE(runningThreads(), threads + kRestarts + kPoolGrowth);
    EXPECT_TRUE(eventually([&] { return openDescriptors() <= descriptors; }))
            << openDescriptors() << " after " << descriptors;
    recovery.stop();
    manager->unRegisterListener(&listener);
}

TEST(Recovery, WorksForAnApplicationThatAsks) {
    auto board = std::make_unique<BoardProcess>();
    ITarnManager* manager = TarnCreator::create();
    android::IAudioCtrl* audio = manager->getAudioCtrl();
    TarnRecovery recovery(manager, TarnRecovery::WITHOUT_EVENTS);
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(audio->setVolume(1), 0);
    EXPECT_EQ(recovery.recover(), TarnRecovery::NOTHING_TO_DO);
    for (int round = 1; round <= 3; round++) {
        end(&board, round);
        EXPECT_EQ(audio->setVolume(1), -1);
        EXPECT_EQ(recovery.recover(), TarnRecovery::STILL_AWAY);
        board = std::make_unique<BoardProcess>();
        EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
        EXPECT_EQ(audio->setVolume(1), 0);
    }
}

/** Publishes the bridge; each line from the test notifies all clients of the number in it. */
CHILD(bridge) {
    android::ProcessState::self()->startThreadPool();
    android::TarnService::instantiate();
    tell("published");
    for (std::string line = listen(); !line.empty(); line = listen()) {
        android::sTarnPlatform->notify(static_cast<unsigned int>(std::stoul(line)), nullptr, 0,
                                       nullptr);
    }
    return 0;
}

class Callback : public ITarnClientCallback {
  public:
    void notify(unsigned int msgType, void*, unsigned int, void*) override {
        std::lock_guard<std::mutex> guard(mLock);
        mTypes.push_back(msgType);
    }

    std::vector<unsigned int> types() {
        std::lock_guard<std::mutex> guard(mLock);
        return mTypes;
    }

  private:
    std::mutex mLock;
    std::vector<unsigned int> mTypes;
};

std::unique_ptr<Child> startBridge() {
    auto bridge = std::make_unique<Child>("bridge");
    EXPECT_EQ(bridge->readLine(), "published");
    return bridge;
}

/** What the service answers to every invoke; a dead one answers nothing. */
bool invokes(TarnClient* client) {
    Parcel data;
    data.writeInterfaceToken(ITarnService::descriptor);
    Parcel reply;
    return client->invoke(data, &reply) == -1;
}

TEST(Recovery, KeepsTwoClientsOfTheBridgeNotifiedThroughTwentyRestarts) {
    android::ProcessState::self()->startThreadPool();
    auto bridge = startBridge();
    const sp<Callback> callbacks[] = {new Callback, new Callback};
    const sp<TarnClient> clients[] = {new TarnClient(callbacks[0]), new TarnClient(callbacks[1])};
    Told told[2];
    TarnRecovery recoveries[] = {TarnRecovery(clients[0]), TarnRecovery(clients[1])};
    for (int i = 0; i < 2; i++) {
        ASSERT_EQ(recoveries[i].recover(), TarnRecovery::RECOVERED);
        ASSERT_EQ(recoveries[i].start(&told[i], kPeriodMs), 0);
    }

    std::vector<unsigned int> expected;
    for (int round = 1; round <= kRestarts; round++) {
        bridge->kill();
        bridge = startBridge();
        for (Told& one : told) ASSERT_TRUE(one.waitForReturn(round)) << "restart " << round;
        bridge->writeLine(std::to_string(round));
        expected.push_back(static_cast<unsigned int>(round));
        for (const sp<Callback>& callback : callbacks) {
            ASSERT_TRUE(eventually([&] { return callback->types().size() >= expected.size(); }))
                    << "restart " << round;
        }
        // By itself, once the process's binder threads have told the library of the death.
        EXPECT_TRUE(eventually([&] { return invokes(clients[0].get()); }));
    }
    for (const sp<Callback>& callback : callbacks) EXPECT_EQ(callback->types(), expected);
    for (TarnRecovery& recovery : recoveries) recovery.stop();
    bridge->kill();
}

}  // namespace
}  // namespace tarn::test
