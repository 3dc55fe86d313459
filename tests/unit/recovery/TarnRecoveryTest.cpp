#include <binder/Parcel.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <tarn/ITarnListener.h>
#include <tarn/TarnManager.h>
#include <tarn/TarnRecovery.h>

#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "core/HwTarnClient.h"
#include "tests/support/BackgroundCall.h"
#include "tests/support/Eventually.h"
#include "tests/support/FakeHwTarn.h"
#include "tests/support/LogCapture.h"

using android::ITarnRecoveryListener;
using android::Parcel;
using android::sp;
using android::TarnManager;
using android::TarnRecovery;
using android::hardware::hidl_string;
using android::hardware::Return;
using android::hardware::Status;
using android::hardware::Void;
using ::vendor::zunt::hwtarn::V1_0::IHwTarn;
using namespace tarn::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/** A hardware service that is started and killed. */
class Service {
  public:
    Service() : Service(new FakeHwTarn) {}
    explicit Service(const sp<FakeHwTarn>& fake) : mFake(fake) { mFake->publish(); }
    ~Service() {
        if (mAlive) kill();
    }

    void kill() {
        mAlive = false;
        mFake->withdraw();
        mFake->failWith(Status::fromStatusT(android::DEAD_OBJECT));
    }

    FakeHwTarn* operator->() const { return mFake.get(); }

  private:
    sp<FakeHwTarn> mFake;
    bool mAlive = true;
};

/** A service to which something happens while it is called. */
class FakeAtCalls : public FakeHwTarn {
  public:
    Return<void> hwRegisterCallback(
            const sp<::vendor::zunt::hwtarn::V1_0::IHwTarnCallback>& callback,
            int32_t pid) override {
        atRegistration();
        return FakeHwTarn::hwRegisterCallback(callback, pid);
    }

    Return<void> ping() override {
        atPing();
        return FakeHwTarn::ping();
    }

    std::function<void()> atRegistration = [] {};
    std::function<void()> atPing = [] {};
};

/** A listener that is never destroyed: the event thread may still be leaving its notify(). */
class Listener : public ITarnListener {
  public:
    static Listener& make() {
        static auto* kept = new std::deque<Listener>;
        return kept->emplace_back();
    }

    void notify(unsigned int msgType, int, int, const Parcel*) override {
        if (onNotify) onNotify();
        std::lock_guard<std::mutex> guard(mLock);
        mTypes.push_back(msgType);
    }

    std::vector<unsigned int> types() {
        std::lock_guard<std::mutex> guard(mLock);
        return mTypes;
    }

    bool waitFor(size_t count) {
        return eventually([&] { return types().size() >= count; });
    }

    std::function<void()> onNotify;

  private:
    std::mutex mLock;
    std::vector<unsigned int> mTypes;
};

/** What an application is told, in words. */
class Told : public ITarnRecoveryListener {
  public:
    void serviceLost() override { add("lost"); }
    void serviceBack() override { add("back"); }

    std::vector<std::string> words() {
        std::lock_guard<std::mutex> guard(mLock);
        return mWords;
    }

    bool waitFor(size_t count) {
        return eventually([&] { return words().size() >= count; });
    }

    std::function<void(const std::string&)> onWord;

  private:
    void add(const std::string& word) {
        {
            std::lock_guard<std::mutex> guard(mLock);
            mWords.push_back(word);
        }
        if (onWord) onWord(word);
    }

    std::mutex mLock;
    std::vector<std::string> mWords;
};

int command(const sp<TarnManager>& manager) {
    return manager->exeCmdSet_Int(1);
}

constexpr unsigned int kOften = 1;  // a watch's period in milliseconds

class Recovery : public testing::Test {
  protected:
    const sp<TarnManager> manager = new TarnManager;
};

TEST_F(Recovery, LetsCommandsReachAServiceThatWasStartedAgain) {
    Service first;
    TarnRecovery recovery(manager.get(), TarnRecovery::WITHOUT_EVENTS);
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(command(manager), 0);
    first.kill();
    EXPECT_EQ(command(manager), -1);
    Service second;
    // What an application has without a recovery.
    EXPECT_EQ(manager->isTarnReady(), 0);
    EXPECT_EQ(command(manager), -1);
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(command(manager), 0);
    EXPECT_EQ(second->requests().size(), 1u);
}

TEST_F(Recovery, DoesNothingAndLogsNothingWhileTheServiceLives) {
    Service service;
    TarnRecovery recovery(manager.get(), TarnRecovery::WITH_EVENTS);
    LogCapture log;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(recovery.recover(), TarnRecovery::NOTHING_TO_DO);
    EXPECT_EQ(recovery.recover(), TarnRecovery::NOTHING_TO_DO);
    EXPECT_EQ(service->registrations(), 1);
    EXPECT_THAT(service->requests(), IsEmpty());
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(Recovery, SaysThatTheServiceIsStillAway) {
    TarnRecovery recovery(manager.get(), TarnRecovery::WITH_EVENTS);
    EXPECT_EQ(recovery.recover(), TarnRecovery::STILL_AWAY);
    Service service;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    service.kill();
    EXPECT_EQ(recovery.recover(), TarnRecovery::STILL_AWAY);
    EXPECT_EQ(recovery.recover(), TarnRecovery::STILL_AWAY);
}

TEST_F(Recovery, DoesNotTakeAServiceThatIsDeadButStillHasItsName) {
    Service service;
    service->failWith(Status::fromStatusT(android::DEAD_OBJECT));
    TarnRecovery recovery(manager.get(), TarnRecovery::WITHOUT_EVENTS);
    EXPECT_EQ(recovery.recover(), TarnRecovery::STILL_AWAY);
}

// A command that found the first service and was held up then keeps what it found, but only where
// the connection is empty.
TEST_F(Recovery, LeavesNoPlaceForADeadServiceThatACommandFoundBefore) {
    Service first;
    const sp<IHwTarn> found = IHwTarn::getService();
    TarnRecovery recovery(manager.get(), TarnRecovery::WITHOUT_EVENTS);
    first.kill();
    Service second;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_NE(android::mHwTarnService.setIfEmpty(found), found);
    EXPECT_EQ(command(manager), 0);
}

TEST_F(Recovery, TakesAnErrorOtherThanADeadObjectForLife) {
    Service service;
    TarnRecovery recovery(manager.get(), TarnRecovery::WITHOUT_EVENTS);
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    service->failWith(Status::fromStatusT(android::FAILED_TRANSACTION));
    EXPECT_EQ(recovery.recover(), TarnRecovery::NOTHING_TO_DO);
}

// Made only after the damage: of what happened before it, it can know nothing.
TEST_F(Recovery, MendsAConnectionThatWasDeadBeforeIt) {
    Service first;
    EXPECT_EQ(command(manager), 0);
    first.kill();
    Service second;
    EXPECT_EQ(command(manager), -1);
    TarnRecovery recovery(manager.get(), TarnRecovery::WITHOUT_EVENTS);
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(command(manager), 0);
}

TEST_F(Recovery, BringsEventsToTheListenerThatWasAddedOnce) {
    Listener& listener = Listener::make();
    manager->registerListener(&listener);
    auto service = std::make_unique<Service>();
    TarnRecovery recovery(manager.get(), TarnRecovery::WITH_EVENTS);
    for (unsigned int round = 1; round <= 5; round++) {
        EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
        (*service)->raiseEvent(round, {});
        ASSERT_TRUE(listener.waitFor(round));
        service.reset();
        service = std::make_unique<Service>();
    }
    EXPECT_THAT(listener.types(), ElementsAre(1, 2, 3, 4, 5));
    manager->unRegisterListener(&listener);
    manager->removeTarnMsgManager();
}

TEST_F(Recovery, LeavesEventsOffThatAreNotWanted) {
    Service service;
    TarnRecovery recovery(manager.get(), TarnRecovery::WITHOUT_EVENTS);
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_FALSE(service->hasCallback());
}

// An event that the old service raised would come beside the new one's.
TEST_F(Recovery, DropsWhatWasNotDeliveredBefore) {
    Listener& listener = Listener::make();
    Gate gate;
    listener.onNotify = [&gate] { gate.pass(); };
    manager->registerListener(&listener);
    TarnRecovery recovery(manager.get(), TarnRecovery::WITH_EVENTS);
    Service first;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    first->raiseEvent(1, {});
    first->raiseEvent(2, {});
    ASSERT_TRUE(eventually([&] { return gate.arrived(); }));
    first.kill();
    Service second;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    gate.open();
    ASSERT_TRUE(listener.waitFor(1));
    second->raiseEvent(3, {});
    second->raiseEvent(4, {});
    ASSERT_TRUE(listener.waitFor(3));
    EXPECT_THAT(listener.types(), ElementsAre(1, 3, 4));
    manager->unRegisterListener(&listener);
    manager->removeTarnMsgManager();
}

TEST_F(Recovery, IsDoneOnceForTwoThatLookAfterOneManager) {
    TarnRecovery one(manager.get(), TarnRecovery::WITH_EVENTS);
    TarnRecovery other(manager.get(), TarnRecovery::WITH_EVENTS);
    Service first;
    EXPECT_EQ(one.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(other.recover(), TarnRecovery::RECOVERED);
    first.kill();
    Service second;
    EXPECT_EQ(one.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(other.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(one.recover(), TarnRecovery::NOTHING_TO_DO);
    EXPECT_EQ(other.recover(), TarnRecovery::NOTHING_TO_DO);
    EXPECT_EQ(first->registrations(), 1);
    EXPECT_EQ(second->registrations(), 1);
}

// Both have seen the service dead; the other one comes too late.
TEST_F(Recovery, IsDoneOnceForTwoThatAskAtTheSameTime) {
    TarnRecovery one(manager.get(), TarnRecovery::WITH_EVENTS);
    TarnRecovery other(manager.get(), TarnRecovery::WITH_EVENTS);
    const sp<FakeAtCalls> fake = new FakeAtCalls;
    Service first(fake);
    EXPECT_EQ(one.recover(), TarnRecovery::RECOVERED);
    Gate gate;
    fake->atPing = [&gate] {
        if (!gate.arrived()) gate.pass();
    };
    first.kill();
    BackgroundCall late([&] { EXPECT_EQ(other.recover(), TarnRecovery::RECOVERED); });
    ASSERT_TRUE(eventually([&] { return gate.arrived(); }));
    Service second;
    EXPECT_EQ(one.recover(), TarnRecovery::RECOVERED);
    gate.open();
    EXPECT_TRUE(eventually([&] { return late.returned(); }));
    EXPECT_EQ(second->registrations(), 1);
}

TEST_F(Recovery, OfOneManagerLeavesAnothersEventsOn) {
    const sp<TarnManager> otherManager = new TarnManager;
    Listener& listener = Listener::make();
    Listener& otherListener = Listener::make();
    manager->registerListener(&listener);
    otherManager->registerListener(&otherListener);
    TarnRecovery recovery(manager.get(), TarnRecovery::WITH_EVENTS);
    TarnRecovery otherRecovery(otherManager.get(), TarnRecovery::WITH_EVENTS);
    Service service;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(otherRecovery.recover(), TarnRecovery::RECOVERED);
    service->raiseEvent(7, {});
    EXPECT_TRUE(listener.waitFor(1));
    EXPECT_TRUE(otherListener.waitFor(1));
    manager->unRegisterListener(&listener);
    otherManager->unRegisterListener(&otherListener);
    manager->removeTarnMsgManager();
    otherManager->removeTarnMsgManager();
}

TEST_F(Recovery, ForgetsAManagerWithItsLastRecovery) {
    Service service;
    {
        TarnRecovery one(manager.get(), TarnRecovery::WITH_EVENTS);
        const TarnRecovery other(manager.get(), TarnRecovery::WITH_EVENTS);
        EXPECT_EQ(one.recover(), TarnRecovery::RECOVERED);
    }
    // Perhaps another manager at the same place: its events are off.
    TarnRecovery recovery(manager.get(), TarnRecovery::WITH_EVENTS);
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(service->registrations(), 2);
}

TEST_F(Recovery, StartsAgainWhenTheServiceDiesInTheMidstOfIt) {
    const sp<FakeAtCalls> fake = new FakeAtCalls;
    Service dying(fake);
    fake->atRegistration = [&] { dying.kill(); };
    TarnRecovery recovery(manager.get(), TarnRecovery::WITH_EVENTS);
    EXPECT_EQ(recovery.recover(), TarnRecovery::STILL_AWAY);
    EXPECT_EQ(recovery.recover(), TarnRecovery::STILL_AWAY);
    Service service;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(command(manager), 0);
    EXPECT_EQ(service->registrations(), 1);
}

// The library may have found another service than the recovery, and that one dead.
TEST_F(Recovery, DropsTheConnectionAgainWhenEventsCannotBeTurnedOn) {
    const sp<FakeAtCalls> fake = new FakeAtCalls;
    const Service service(fake);
    const sp<FakeHwTarn> dead = new FakeHwTarn;
    dead->failWith(Status::fromStatusT(android::DEAD_OBJECT));
    fake->atPing = [&] { dead->publish(); };
    TarnRecovery recovery(manager.get(), TarnRecovery::WITH_EVENTS);
    EXPECT_EQ(recovery.recover(), TarnRecovery::STILL_AWAY);
    fake->atPing = [] {};
    fake->publish();
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(dead->registrations(), 1);
    EXPECT_EQ(fake->registrations(), 1);
}

TEST_F(Recovery, HoldsNobodyUpWhileItCallsTheService) {
    const sp<FakeAtCalls> fake = new FakeAtCalls;
    Gate gate;
    fake->atRegistration = [&gate] { gate.pass(); };
    const Service service(fake);
    TarnRecovery recovery(manager.get(), TarnRecovery::WITH_EVENTS);
    TarnRecovery other(manager.get(), TarnRecovery::WITH_EVENTS);
    TarnRecovery withoutEvents(manager.get(), TarnRecovery::WITHOUT_EVENTS);
    BackgroundCall held([&] { EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED); });
    ASSERT_TRUE(eventually([&] { return gate.arrived(); }));
    EXPECT_EQ(other.recover(), TarnRecovery::STILL_AWAY);
    // Commands work already, so that nothing is left to do for this one.
    EXPECT_EQ(command(manager), 0);
    EXPECT_EQ(withoutEvents.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(other.start(), 0);
    other.stop();
    gate.open();
    EXPECT_TRUE(eventually([&] { return held.returned(); }));
    EXPECT_EQ(other.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(fake->registrations(), 1);
}

TEST_F(Recovery, LetsACommandEndThatIsUnderWay) {
    Service first;
    Gate gate;
    first->onInvoke = [&gate](const std::string&) {
        gate.pass();
        return std::string("\x05\0\0\0", 4);
    };
    TarnRecovery recovery(manager.get(), TarnRecovery::WITH_EVENTS);
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    BackgroundCall call([&] { EXPECT_EQ(command(manager), 5); });
    ASSERT_TRUE(eventually([&] { return gate.arrived(); }));
    first.kill();
    Service second;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(command(manager), 0);
    gate.open();
    EXPECT_TRUE(eventually([&] { return call.returned(); }));
}

TEST_F(Recovery, CanBeAskedForByAListener) {
    Listener& listener = Listener::make();
    manager->registerListener(&listener);
    TarnRecovery recovery(manager.get(), TarnRecovery::WITH_EVENTS);
    auto service = std::make_unique<Service>();
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    std::atomic<int> status{-1};
    listener.onNotify = [&] {
        service.reset();
        service = std::make_unique<Service>();
        status = recovery.recover();
    };
    (*service)->raiseEvent(1, {});
    ASSERT_TRUE(listener.waitFor(1));
    EXPECT_EQ(status, TarnRecovery::RECOVERED);
    listener.onNotify = nullptr;
    (*service)->raiseEvent(2, {});
    ASSERT_TRUE(listener.waitFor(2));
    EXPECT_THAT(listener.types(), ElementsAre(1, 2));
    manager->unRegisterListener(&listener);
    manager->removeTarnMsgManager();
}

TEST_F(Recovery, TellsOfEveryLossAndReturn) {
    auto service = std::make_unique<Service>();
    Told told;
    TarnRecovery recovery(manager.get(), TarnRecovery::WITH_EVENTS);
    EXPECT_EQ(recovery.start(&told, kOften), 0);
    EXPECT_TRUE(eventually([&] { return (*service)->registrations() == 1; }));
    service.reset();
    ASSERT_TRUE(told.waitFor(1));
    EXPECT_THAT(told.words(), ElementsAre("lost"));
    service = std::make_unique<Service>();
    ASSERT_TRUE(told.waitFor(2));
    EXPECT_EQ(command(manager), 0);
    service.reset();
    service = std::make_unique<Service>();
    ASSERT_TRUE(told.waitFor(4));
    recovery.stop();
    EXPECT_THAT(told.words(), ElementsAre("lost", "back", "lost", "back"));
}

TEST_F(Recovery, TellsOfAServiceThatWasNotThereAtTheStart) {
    Told told;
    TarnRecovery recovery(manager.get(), TarnRecovery::WITHOUT_EVENTS);
    EXPECT_EQ(recovery.start(&told, kOften), 0);
    ASSERT_TRUE(told.waitFor(1));
    Service service;
    ASSERT_TRUE(told.waitFor(2));
    EXPECT_THAT(told.words(), ElementsAre("lost", "back"));
}

TEST_F(Recovery, TellsOfALossThatAnotherHasMended) {
    auto service = std::make_unique<Service>();
    TarnRecovery asked(manager.get(), TarnRecovery::WITHOUT_EVENTS);
    EXPECT_EQ(asked.recover(), TarnRecovery::RECOVERED);
    Told told;
    Gate gate;
    told.onWord = [&gate](const std::string& word) {
        if (word == "back") gate.pass();
    };
    TarnRecovery watching(manager.get(), TarnRecovery::WITHOUT_EVENTS);
    EXPECT_EQ(watching.start(&told, kOften), 0);
    service.reset();
    ASSERT_TRUE(told.waitFor(1));
    service = std::make_unique<Service>();
    ASSERT_TRUE(eventually([&] { return gate.arrived(); }));
    service.reset();
    service = std::make_unique<Service>();
    EXPECT_TRUE(eventually([&] { return asked.recover() == TarnRecovery::RECOVERED; }));
    EXPECT_THAT(told.words(), ElementsAre("lost", "back"));
    gate.open();
    ASSERT_TRUE(told.waitFor(4));
    watching.stop();
    EXPECT_THAT(told.words(), ElementsAre("lost", "back", "lost", "back"));
}

// Neither lost nor back: it will be told by the one that is at it.
TEST_F(Recovery, TellsNothingWhileAnotherIsAtIt) {
    const sp<FakeAtCalls> before = new FakeAtCalls;
    Service first(before);
    std::atomic<int> looks{0};
    before->atPing = [&looks] { looks++; };
    TarnRecovery asked(manager.get(), TarnRecovery::WITHOUT_EVENTS);
    EXPECT_EQ(asked.recover(), TarnRecovery::RECOVERED);
    Told told;
    Gate atLoss;
    told.onWord = [&atLoss](const std::string&) { atLoss.pass(); };
    TarnRecovery watching(manager.get(), TarnRecovery::WITHOUT_EVENTS);
    EXPECT_EQ(watching.start(&told, kOften), 0);
    EXPECT_TRUE(eventually([&] { return looks > 1; }));
    first.kill();
    ASSERT_TRUE(eventually([&] { return atLoss.arrived(); }));

    const sp<FakeAtCalls> after = new FakeAtCalls;
    Gate atPing;
    after->atPing = [&atPing] { atPing.pass(); };
    const Service second(after);
    BackgroundCall call([&] { EXPECT_EQ(asked.recover(), TarnRecovery::RECOVERED); });
    ASSERT_TRUE(eventually([&] { return atPing.arrived(); }));
    looks = 0;
    atLoss.open();
    EXPECT_TRUE(eventually([&] { return looks > 2; }));
    EXPECT_THAT(told.words(), ElementsAre("lost"));
    atPing.open();
    EXPECT_TRUE(eventually([&] { return call.returned(); }));
    ASSERT_TRUE(told.waitFor(2));
    watching.stop();
    EXPECT_THAT(told.words(), ElementsAre("lost", "back"));
    // The next test's recovery pings it once more.
    after->atPing = [] {};
}

TEST_F(Recovery, StartsNothingUnlessAskedAndOnlyOnce) {
    Service service;
    TarnRecovery recovery(manager.get(), TarnRecovery::WITH_EVENTS);
    EXPECT_EQ(service->registrations(), 0);
    recovery.stop();
    EXPECT_EQ(recovery.start(nullptr, kOften), 0);
    EXPECT_EQ(recovery.start(nullptr, kOften), -1);
    recovery.stop();
    recovery.stop();
    EXPECT_EQ(recovery.start(nullptr, kOften), 0);
    EXPECT_TRUE(eventually([&] { return service->registrations() == 1; }));
}

TEST_F(Recovery, StopsDuringAPeriodThatNeverEnds) {
    Service service;
    TarnRecovery recovery(manager.get(), TarnRecovery::WITH_EVENTS);
    EXPECT_EQ(recovery.start(nullptr, ~0u), 0);
    EXPECT_TRUE(eventually([&] { return service->registrations() == 1; }));
    BackgroundCall stop([&] { recovery.stop(); });
    EXPECT_TRUE(eventually([&] { return stop.returned(); }));
}

TEST_F(Recovery, WaitsAtItsEndForTheCallThatItIsIn) {
    const sp<FakeAtCalls> fake = new FakeAtCalls;
    Gate gate;
    fake->atRegistration = [&gate] { gate.pass(); };
    const Service service(fake);
    Told told;
    TarnRecovery recovery(manager.get(), TarnRecovery::WITH_EVENTS);
    EXPECT_EQ(recovery.start(&told, kOften), 0);
    ASSERT_TRUE(eventually([&] { return gate.arrived(); }));
    BackgroundCall stop([&] { recovery.stop(); });
    EXPECT_TRUE(stop.waits());
    gate.open();
    EXPECT_TRUE(eventually([&] { return stop.returned(); }));
    EXPECT_THAT(told.words(), IsEmpty());
}

TEST_F(Recovery, StopsWithinACallbackAndTellsNothingMore) {
    auto service = std::make_unique<Service>();
    TarnRecovery asked(manager.get(), TarnRecovery::WITHOUT_EVENTS);
    EXPECT_EQ(asked.recover(), TarnRecovery::RECOVERED);
    Told told;
    Gate gate;
    TarnRecovery watching(manager.get(), TarnRecovery::WITHOUT_EVENTS);
    told.onWord = [&](const std::string& word) {
        if (word == "back") gate.pass();
        if (word == "lost" && gate.arrived()) watching.stop();
    };
    EXPECT_EQ(watching.start(&told, kOften), 0);
    service.reset();
    ASSERT_TRUE(told.waitFor(1));
    service = std::make_unique<Service>();
    ASSERT_TRUE(eventually([&] { return gate.arrived(); }));
    // It finds the connection made anew, with a loss and a return to tell of.
    service.reset();
    service = std::make_unique<Service>();
    EXPECT_TRUE(eventually([&] { return asked.recover() == TarnRecovery::RECOVERED; }));
    gate.open();
    ASSERT_TRUE(told.waitFor(3));
    watching.stop();
    EXPECT_THAT(told.words(), ElementsAre("lost", "back", "lost"));
}

TEST_F(Recovery, EndsAfterTheCallbackThatStoppedIt) {
    Told told;
    Gate gate;
    auto recovery = std::make_unique<TarnRecovery>(manager.get(), TarnRecovery::WITHOUT_EVENTS);
    told.onWord = [&](const std::string&) {
        recovery->stop();
        gate.pass();
    };
    EXPECT_EQ(recovery->start(&told, kOften), 0);
    ASSERT_TRUE(eventually([&] { return gate.arrived(); }));
    BackgroundCall end([&] { recovery->stop(); });
    EXPECT_TRUE(end.waits());
    gate.open();
    EXPECT_TRUE(eventually([&] { return end.returned(); }));
}

TEST_F(Recovery, CanBeAskedForByItsOwnCallback) {
    auto service = std::make_unique<Service>();
    Told told;
    TarnRecovery recovery(manager.get(), TarnRecovery::WITH_EVENTS);
    std::atomic<int> status{-1};
    told.onWord = [&](const std::string& word) {
        if (word == "lost") status = recovery.recover();
    };
    EXPECT_EQ(recovery.start(&told, kOften), 0);
    EXPECT_TRUE(eventually([&] { return (*service)->registrations() == 1; }));
    service.reset();
    EXPECT_TRUE(eventually([&] { return status == TarnRecovery::STILL_AWAY; }));
}

}  // namespace
