#include <gtest/gtest.h>
#include <tarn/Controllers.h>
#include <tarn/ITarnListener.h>
#include <tarn/TarnCreator.h>
#include <tarn/TarnManager.h>

#include <atomic>
#include <deque>
#include <set>
#include <thread>
#include <vector>

#include "tests/support/BackgroundCall.h"
#include "tests/support/FakeHwTarn.h"
#include "tests/support/LogCapture.h"
#include "tests/support/RecordingManager.h"

using android::ITarnManager;
using android::Parcel;
using android::sp;
using android::TarnCreator;
using android::TarnManager;
using android::hardware::Status;
using namespace tarn::test;

namespace {

/** Managers and their controllers hold each other forever; these are kept in sight. */
sp<RecordingManager> keptManager() {
    static auto* kept = new std::vector<sp<RecordingManager>>;
    kept->push_back(new RecordingManager);
    return kept->back();
}

TEST(TarnCreator, GivesEveryThreadTheSameManager) {
    std::vector<ITarnManager*> seen(8);
    std::vector<std::thread> threads;
    for (ITarnManager*& slot : seen) {
        threads.emplace_back([&slot] { slot = TarnCreator::create(); });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_NE(seen[0], nullptr);
    EXPECT_EQ(std::set<ITarnManager*>(seen.begin(), seen.end()).size(), 1u);
}

TEST(TarnManager, WorksWithoutAServiceUntilACommandIsSent) {
    ITarnManager* manager = TarnCreator::create();
    EXPECT_EQ(manager->isTarnReady(), -1);
    android::ISystemCtrl* system = manager->getSystemCtrl();
    ASSERT_NE(system, nullptr);
    EXPECT_EQ(system->getOtaUpgradeStatus(), -1);
}

TEST(TarnManager, ReturnsTheSameControllerEveryTime) {
    const sp<RecordingManager> manager = keptManager();
    EXPECT_EQ(manager->getSystemCtrl(), manager->getSystemCtrl());
    EXPECT_EQ(manager->getPQCtrol(), manager->getPQCtrol());
}

TEST(TarnManager, CreatesAControllerOnceForManyThreads) {
    const sp<RecordingManager> manager = keptManager();
    std::vector<android::IAudioCtrl*> seen(8);
    std::vector<std::thread> threads;
    for (android::IAudioCtrl*& slot : seen) {
        threads.emplace_back([&slot, manager] { slot = manager->getAudioCtrl(); });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(std::set<android::IAudioCtrl*>(seen.begin(), seen.end()).size(), 1u);
}

TEST(TarnManager, RoutesAControllersCommandsThroughADerivedInvoke) {
    const sp<RecordingManager> manager = keptManager();
    manager->answer(words({42}));
    EXPECT_EQ(manager->getAudioCtrl()->getVolume(), 42);
    EXPECT_EQ(manager->requests(), std::vector<Bytes>{hex("01140000")});
}

TEST(TarnManager, CarriesACommandToTheServiceAndBack) {
    PublishedFake service;
    service->onInvoke = [](const std::string&) { return std::string("\x1e\0\0\0", 4); };
    sp<TarnManager> manager = new TarnManager;
    EXPECT_EQ(manager->isTarnReady(), 0);
    EXPECT_EQ(manager->exeCmdSet_Int(0x1402, 30), 30);
    EXPECT_EQ(service->requests(),
              std::vector<std::string>{std::string("\x02\x14\0\0\x1e\0\0\0", 8)});
}

TEST(TarnManager, LeavesTheCallersRequestAloneAndRewindsTheReply) {
    PublishedFake service;
    service->onInvoke = [](const std::string&) { return std::string("\x05\0\0\0\x06\0\0\0", 8); };
    sp<TarnManager> manager = new TarnManager;
    Parcel request;
    request.writeInt32(1);
    Parcel reply;
    EXPECT_EQ(manager->invoke(request, &reply), 5);
    EXPECT_EQ(request.dataPosition(), 4u);
    EXPECT_EQ(reply.dataPosition(), 0u);
    EXPECT_EQ(reply.readInt32(), 5);
    EXPECT_EQ(reply.readInt32(), 6);
}

TEST(TarnManager, LogsAFailedInvoke) {
    PublishedFake service;
    service->failWith(Status::fromStatusT(android::DEAD_OBJECT));
    sp<TarnManager> manager = new TarnManager;
    LogCapture log;
    EXPECT_EQ(manager->exeCmdSet_Int(1), -1);
    const auto lines = log.lines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[1].tag, "Zunt@TarnManager");
    EXPECT_EQ(lines[1].priority, 6);
    EXPECT_EQ(lines[1].function, "invoke");
    EXPECT_EQ(lines[1].message, "invoke failure !");
}

TEST(TarnManager, PostsEventsAndLogsWhenThatFails) {
    PublishedFake service;
    sp<TarnManager> manager = new TarnManager;
    Parcel data;
    data.writeInt32(7);
    EXPECT_EQ(manager->postEvent(3, data), 0);
    ASSERT_EQ(service->events().size(), 1u);
    EXPECT_EQ(service->events()[0].what, 3);
    EXPECT_EQ(service->events()[0].data, std::string("\x07\0\0\0", 4));

    service->failWith(Status::fromStatusT(android::DEAD_OBJECT));
    LogCapture log;
    EXPECT_EQ(manager->postEvent(3, data), -1);
    EXPECT_EQ(log.messages().back(), "invoke failure !");
    EXPECT_EQ(log.lines().back().function, "postEvent");
}

TEST(TarnManager, TakesATransportErrorForAnEmptyReplyAndKeepsTheOutParcel) {
    PublishedFake service;
    service->failWith(Status::fromStatusT(android::FAILED_TRANSACTION));
    const sp<TarnManager> manager = new TarnManager;
    Parcel out;
    out.writeInt32(99);
    EXPECT_EQ(manager->exeCmdSet_Parcel(1, &out), 0);
    EXPECT_EQ(manager->exeCmdSet_Int(1), 0);
    EXPECT_EQ(service->requests().size(), 2u);
    out.setDataPosition(0);
    EXPECT_EQ(out.dataSize(), 4u);
    EXPECT_EQ(out.readInt32(), 99);
}

class CountingListener : public ITarnListener {
  public:
    void notify(unsigned int, int, int, const Parcel*) override { events++; }

    std::atomic<int> events{0};
};

TEST(TarnManager, IgnoresANullListener) {
    PublishedFake service;
    const sp<TarnManager> manager = new TarnManager;
    // Never destroyed: the event thread may still be leaving its notify().
    static CountingListener& listener = *new CountingListener;
    EXPECT_EQ(manager->registerListener(nullptr), 0);
    manager->registerListener(&listener);
    EXPECT_EQ(manager->unRegisterListener(nullptr), 0);
    ASSERT_EQ(manager->createTarnMsgManager(), 0);
    service->raiseEvent(1, {});
    service->raiseEvent(2, {});
    EXPECT_TRUE(eventually([] { return listener.events == 2; }));
    manager->unRegisterListener(&listener);
    manager->removeTarnMsgManager();
}

/** Holds up the accessor that is called first, while it creates its controller. */
class HeldManager : public TarnManager {
  public:
    HeldManager() : TarnManager(sp<android::HwTarnClient>()) {}

    Gate gate;

  protected:
    // The first strong reference is the controller's: nobody else has made one before.
    void onFirstRef() override { gate.pass(); }
};

struct Accessor {
    const char* name;
    void (*call)(ITarnManager* manager);
};

constexpr Accessor kSharingAccessors[] = {
        {"camera", [](ITarnManager* manager) { manager->getCameraCtrl(); }},
        {"sensor box", [](ITarnManager* manager) { manager->getSensorBoxCtrl(); }},
        {"serial", [](ITarnManager* manager) { manager->getSerialCtrl(); }},
        {"I/O box", [](ITarnManager* manager) { manager->getIoBoxCtrl(); }},
};

TEST(TarnManager, LetsCameraSensorBoxSerialAndIoBoxWaitForEachOtherAndNobodyElse) {
    static auto& kept = *new std::vector<HeldManager*>;
    for (const Accessor& holder : kSharingAccessors) {
        // No strong reference yet; its controllers will hold it forever.
        HeldManager* const manager = kept.emplace_back(new HeldManager);
        BackgroundCall held([&] { holder.call(manager); });
        ASSERT_TRUE(eventually([&] { return manager->gate.arrived(); }));

        std::deque<BackgroundCall> others;
        for (const Accessor& other : kSharingAccessors) {
            BackgroundCall& call = others.emplace_back([&] { other.call(manager); });
            EXPECT_TRUE(call.waits()) << other.name << " beside " << holder.name;
        }
        BackgroundCall txb([&] { manager->getTxbCtrl(); });
        EXPECT_TRUE(eventually([&] { return txb.returned(); })) << "beside " << holder.name;
        EXPECT_FALSE(held.returned());
        for (const BackgroundCall& call : others) EXPECT_FALSE(call.returned());
        manager->gate.open();
    }
}

TEST(TarnManager, KeepsItsThreadsCommandsApart) {
    PublishedFake service;
    // Echoes the argument as the status.
    service->onInvoke = [](const std::string& request) { return request.substr(4, 4); };
    sp<TarnManager> manager = new TarnManager;
    constexpr int kThreads = 8;
    constexpr int kCommands = 10000;
    std::vector<int> wrong(kThreads);
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; t++) {
        threads.emplace_back([t, &wrong, manager] {
            for (int i = 0; i < kCommands; i++) {
                const int payload = t * kCommands + i;
                if (manager->exeCmdSet_Int(0x1402, payload) != payload) wrong[t]++;
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    for (int t = 0; t < kThreads; t++) EXPECT_EQ(wrong[t], 0) << "thread " << t;
    EXPECT_EQ(service->requests().size(), static_cast<size_t>(kThreads * kCommands));
}

}  // namespace
