#include <binder/Parcel.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <tarn/ITarnListener.h>
#include <tarn/TarnManager.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include "core/HwTarnClient.h"
#include "core/TarnClientLooper.h"
#include "tests/support/Eventually.h"
#include "tests/support/FakeHwTarn.h"
#include "tests/support/LogCapture.h"

using android::HwTarnClient;
using android::mITarnClientLooper;
using android::Parcel;
using android::sp;
using android::TarnClientLooper;
using android::TarnManager;
using namespace std::chrono_literals;
using namespace tarn::test;
using Clock = std::chrono::steady_clock;

namespace {

struct Received {
    unsigned int msgType;
    std::string bytes;
    Clock::time_point time;
};

class Listener : public ITarnListener {
  public:
    void notify(unsigned int msgType, int ext1, int ext2, const Parcel* data) override {
        EXPECT_EQ(ext1, 0);
        EXPECT_EQ(ext2, 0);
        EXPECT_EQ(data->dataPosition(), 0u);
        data->setDataPosition(data->dataSize());
        {
            std::lock_guard<std::mutex> guard(mLock);
            mReceived.push_back(Received{
                    msgType,
                    std::string(reinterpret_cast<const char*>(data->data()), data->dataSize()),
                    Clock::now()});
        }
        mChanged.notify_all();
        if (onNotify) onNotify();
    }

    /** Waits until so many events have come; false after a minute. */
    bool waitFor(size_t count) {
        std::unique_lock<std::mutex> guard(mLock);
        return mChanged.wait_for(guard, 60s, [&] { return mReceived.size() >= count; });
    }

    std::vector<Received> received() {
        std::lock_guard<std::mutex> guard(mLock);
        return mReceived;
    }

    std::vector<unsigned int> types() {
        std::vector<unsigned int> types;
        for (const Received& event : received()) types.push_back(event.msgType);
        return types;
    }

    std::function<void()> onNotify;

  private:
    std::mutex mLock;
    std::condition_variable mChanged;
    std::vector<Received> mReceived;
};

/** A listener that is never destroyed: the looper's thread may still be leaving its notify(). */
Listener& keptListener() {
    static auto* kept = new std::deque<Listener>;
    return kept->emplace_back();
}

class Events : public testing::Test {
  protected:
    ~Events() override { manager->removeTarnMsgManager(); }

    /** Raises one more event and waits for it: all earlier ones have been handled by then. */
    void drain(Listener* listener) {
        const size_t before = listener->received().size();
        service->raiseEvent(0xffff, {});
        EXPECT_TRUE(listener->waitFor(before + 1));
    }

    PublishedFake service;
    sp<TarnManager> manager = new TarnManager;
};

TEST_F(Events, ReachAListenerInPostingOrderTenMillisecondsApart) {
    Listener& listener = keptListener();
    manager->registerListener(&listener);
    ASSERT_EQ(manager->createTarnMsgManager(), 0);
    service->raiseEvent(3, {1, 0, 0, 0});
    service->raiseEvent(1, {2, 0, 0, 0});
    service->raiseEvent(2, {3, 0, 0, 0});
    ASSERT_TRUE(listener.waitFor(3));
    EXPECT_EQ(listener.types(), (std::vector<unsigned int>{3, 1, 2}));
    const auto events = listener.received();
    EXPECT_EQ(events[1].bytes, std::string("\x02\0\0\0", 4));
    EXPECT_GE(events[1].time - events[0].time, 10ms);
    EXPECT_GE(events[2].time - events[1].time, 10ms);
    manager->unRegisterListener(&listener);
}

TEST_F(Events, ComeWithAnEmptyParcelWhenTheyCarryNothing) {
    Listener& listener = keptListener();
    manager->registerListener(&listener);
    manager->createTarnMsgManager();
    service->raiseEvent(7, {});
    ASSERT_TRUE(listener.waitFor(1));
    EXPECT_EQ(listener.received()[0].bytes, "");
    manager->unRegisterListener(&listener);
}

TEST_F(Events, ComeWithTheirOneByteToo) {
    Listener& listener = keptListener();
    manager->registerListener(&listener);
    manager->createTarnMsgManager();
    service->raiseEvent(7, {'a'});
    ASSERT_TRUE(listener.waitFor(1));
    EXPECT_EQ(listener.received()[0].bytes, std::string("a\0\0\0", 4));
    manager->unRegisterListener(&listener);
}

TEST_F(Events, ComePaddedToWholeWords) {
    Listener& listener = keptListener();
    manager->registerListener(&listener);
    manager->createTarnMsgManager();
    service->raiseEvent(7, {'a', 'b', 'c', 'd', 'e'});
    ASSERT_TRUE(listener.waitFor(1));
    EXPECT_EQ(listener.received()[0].bytes, std::string("abcde\0\0\0", 8));
    manager->unRegisterListener(&listener);
}

TEST_F(Events, ReachListenersInAscendingOrderOfTheirAddresses) {
    struct Kept {
        Listener listeners[3];
        std::mutex lock;
        std::vector<int> order;
    };
    static Kept& kept = *new Kept;
    for (const int i : {1, 2, 0}) {
        kept.listeners[i].onNotify = [i] {
            std::lock_guard<std::mutex> guard(kept.lock);
            kept.order.push_back(i);
        };
        manager->registerListener(&kept.listeners[i]);
    }
    manager->createTarnMsgManager();
    service->raiseEvent(7, {});
    EXPECT_TRUE(eventually([&] {
        std::lock_guard<std::mutex> guard(kept.lock);
        return kept.order.size() == 3;
    }));
    EXPECT_EQ(kept.order, (std::vector<int>{0, 1, 2}));
    for (Listener& listener : kept.listeners) manager->unRegisterListener(&listener);
}

TEST_F(Events, StandAtTheirStartForEveryListener) {
    // A listener checks the position and then reads to the end.
    Listener* const listeners[] = {&keptListener(), &keptListener()};
    for (Listener* listener : listeners) manager->registerListener(listener);
    manager->createTarnMsgManager();
    service->raiseEvent(7, {42, 0, 0, 0});
    for (Listener* listener : listeners) EXPECT_TRUE(listener->waitFor(1));
    for (Listener* listener : listeners) manager->unRegisterListener(listener);
}

TEST_F(Events, ComeOnceToAListenerThatRegisteredTwice) {
    Listener& listener = keptListener();
    manager->registerListener(&listener);
    manager->registerListener(&listener);
    manager->createTarnMsgManager();
    service->raiseEvent(7, {});
    ASSERT_TRUE(listener.waitFor(1));
    manager->unRegisterListener(&listener);

    Listener& other = keptListener();
    manager->registerListener(&other);
    drain(&other);
    EXPECT_EQ(listener.received().size(), 1u);
    manager->unRegisterListener(&other);
}

TEST_F(Events, AreNotRaisedByTexts) {
    Listener& listener = keptListener();
    manager->registerListener(&listener);
    manager->createTarnMsgManager();
    service->raiseText(7, "text");
    drain(&listener);
    EXPECT_EQ(listener.types(), std::vector<unsigned int>{0xffff});
    manager->unRegisterListener(&listener);
}

TEST_F(Events, AreConsumedWhileNobodyListens) {
    manager->createTarnMsgManager();
    LogCapture log;
    service->raiseEvent(1, {});
    service->raiseEvent(2, {});
    // The first has been handled when the second comes up.
    ASSERT_TRUE(eventually([&] {
        return testing::Value(log.messages(), testing::Contains("msgType = 2, size = 0"));
    }));
    Listener& listener = keptListener();
    manager->registerListener(&listener);
    drain(&listener);
    EXPECT_THAT(listener.types(), testing::Not(testing::Contains(1u)));
    manager->unRegisterListener(&listener);
}

TEST_F(Events, AreDroppedOnceTheEventPathIsRemoved) {
    Listener& listener = keptListener();
    manager->registerListener(&listener);
    manager->createTarnMsgManager();
    drain(&listener);
    EXPECT_EQ(manager->removeTarnMsgManager(), 0);
    service->raiseEvent(5, {});
    std::this_thread::sleep_for(100ms);
    EXPECT_EQ(listener.types(), std::vector<unsigned int>{0xffff});
    EXPECT_EQ(mITarnClientLooper, nullptr);
    manager->unRegisterListener(&listener);
}

TEST_F(Events, ComeBackWhenTheEventPathIsCreatedAgain) {
    Listener& listener = keptListener();
    manager->registerListener(&listener);
    manager->createTarnMsgManager();
    manager->removeTarnMsgManager();
    EXPECT_EQ(manager->removeTarnMsgManager(), 0);
    EXPECT_EQ(manager->createTarnMsgManager(), 0);
    drain(&listener);
    manager->unRegisterListener(&listener);
}

TEST_F(Events, AreNotDeliveredBeforeTheEventPathIsCreated) {
    Listener& listener = keptListener();
    manager->registerListener(&listener);
    mITarnClientLooper->postMsg(4, nullptr, 0);
    std::this_thread::sleep_for(100ms);
    EXPECT_TRUE(listener.received().empty());
    manager->createTarnMsgManager();
    EXPECT_TRUE(listener.waitFor(1));
    manager->unRegisterListener(&listener);
}

TEST_F(Events, ComeOnceWithASecondLooperThread) {
    Listener& listener = keptListener();
    manager->registerListener(&listener);
    manager->createTarnMsgManager();
    manager->createTarnMsgManager();
    for (unsigned int i = 0; i < 20; i++) service->raiseEvent(i, {});
    ASSERT_TRUE(listener.waitFor(20));
    std::this_thread::sleep_for(100ms);
    std::vector<unsigned int> types = listener.types();
    std::sort(types.begin(), types.end());
    ASSERT_EQ(types.size(), 20u);
    for (unsigned int i = 0; i < 20; i++) EXPECT_EQ(types[i], i);
    manager->unRegisterListener(&listener);
}

TEST_F(Events, LetAListenerUnregisterAndSendCommandsWhileItIsNotified) {
    Listener& listener = keptListener();
    listener.onNotify = [&] {
        EXPECT_EQ(manager->exeCmdSet_Int(1), 0);
        manager->unRegisterListener(&listener);
    };
    manager->registerListener(&listener);
    manager->createTarnMsgManager();
    service->raiseEvent(1, {});
    service->raiseEvent(2, {});
    ASSERT_TRUE(listener.waitFor(1));

    Listener& other = keptListener();
    manager->registerListener(&other);
    drain(&other);
    EXPECT_EQ(listener.types(), std::vector<unsigned int>{1});
    manager->unRegisterListener(&other);
}

TEST_F(Events, LogTypeAndSize) {
    LogCapture log;
    Listener& listener = keptListener();
    manager->registerListener(&listener);
    manager->createTarnMsgManager();
    service->raiseEvent(0x1a, {1, 2, 3, 4, 5, 6, 7, 8});
    ASSERT_TRUE(listener.waitFor(1));
    const auto lines = log.lines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].tag, "Zunt@HwTarnClient");
    EXPECT_EQ(lines[0].priority, 3);
    EXPECT_EQ(lines[0].function, "handleMsg");
    EXPECT_EQ(lines[0].message, "msgType = 1a, size = 8");
    manager->unRegisterListener(&listener);
}

TEST_F(Events, ArriveExactlyOnceAndInOrderWhileListenersComeAndGo) {
    constexpr unsigned int kThreads = 4;
    constexpr unsigned int kEvents = 500;
    Listener& staying = keptListener();
    manager->registerListener(&staying);
    ASSERT_EQ(manager->createTarnMsgManager(), 0);

    std::atomic<bool> done{false};
    Listener* const passing[] = {&keptListener(), &keptListener(), &keptListener()};
    std::thread registrar([&] {
        while (!done) {
            for (Listener* listener : passing) manager->registerListener(listener);
            std::this_thread::sleep_for(3ms);
            for (Listener* listener : passing) manager->unRegisterListener(listener);
        }
    });
    std::vector<std::thread> raisers;
    for (unsigned int t = 0; t < kThreads; t++) {
        raisers.emplace_back([&, t] {
            for (unsigned int i = 0; i < kEvents; i++) service->raiseEvent(t << 16 | i, {});
        });
    }
    for (std::thread& thread : raisers) thread.join();
    ASSERT_TRUE(staying.waitFor(kThreads * kEvents));
    done = true;
    registrar.join();

    unsigned int next[kThreads] = {};
    for (const unsigned int type : staying.types()) {
        ASSERT_LT(type >> 16, kThreads);
        EXPECT_EQ(type & 0xffff, next[type >> 16]++);
    }
    EXPECT_EQ(staying.received().size(), kThreads * kEvents);
    manager->unRegisterListener(&staying);
}

struct Delivery {
    const void* target;
    std::thread::id thread;
    unsigned int msgType;
    std::string bytes;
};

/** What several targets were handed, in its order. */
class Deliveries {
  public:
    void add(const Delivery& delivery) {
        std::lock_guard<std::mutex> guard(mLock);
        mAll.push_back(delivery);
    }

    std::vector<Delivery> all() const {
        std::lock_guard<std::mutex> guard(mLock);
        return mAll;
    }

  private:
    mutable std::mutex mLock;
    std::vector<Delivery> mAll;
};

/** Loopers never own their targets. */
class Target final : public ITarnLooper {
  public:
    bool handleMsg(unsigned int msgType, void* data, unsigned int size) override {
        deliveries->add({this, std::this_thread::get_id(), msgType,
                         std::string(static_cast<const char*>(data), size)});
        return false;
    }

    Deliveries* deliveries = nullptr;
};

/** Targets that are never destroyed: a looper's thread may still be leaving their handleMsg(). */
template <size_t Count>
struct KeptTargets {
    Deliveries deliveries;
    Target targets[Count];

    static KeptTargets& make() {
        static auto* kept = new std::deque<KeptTargets>;
        KeptTargets& made = kept->emplace_back();
        for (Target& target : made.targets) target.deliveries = &made.deliveries;
        return made;
    }
};

TEST(TarnClientLooper, RefusesANullTarget) {
    sp<TarnClientLooper> looper = new TarnClientLooper;
    EXPECT_EQ(looper->createTarnMsgLooper(nullptr), -1);
    EXPECT_EQ(looper->removeTarnMsgLooper(nullptr), 0);
}

#ifdef __GLIBC__  // the device's C library has no default that a test could change
TEST(TarnClientLooper, FailsWithoutAThread) {
    pthread_attr_t before;
    pthread_attr_t unaffordable;
    ASSERT_EQ(pthread_getattr_default_np(&before), 0);
    ASSERT_EQ(pthread_getattr_default_np(&unaffordable), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&unaffordable, SIZE_MAX - (size_t{16} << 20) + 1), 0);
    ASSERT_EQ(pthread_setattr_default_np(&unaffordable), 0);
    const sp<TarnClientLooper> looper = new TarnClientLooper;
    auto& [deliveries, targets] = KeptTargets<1>::make();
    EXPECT_EQ(looper->createTarnMsgLooper(&targets[0]), -1);
    EXPECT_EQ(looper->getStrongCount(), 1);
    ASSERT_EQ(pthread_setattr_default_np(&before), 0);
    pthread_attr_destroy(&before);
    pthread_attr_destroy(&unaffordable);
}
#endif

TEST(TarnClientLooper, SendsNowhereWithoutATarget) {
    sp<TarnClientLooper> looper = new TarnClientLooper;
    EXPECT_FALSE(looper->sendMsg(1, nullptr, 0));
}

TEST(TarnClientLooper, SendsOnTheCallersThreadInAscendingTargetOrder) {
    sp<TarnClientLooper> looper = new TarnClientLooper;
    auto& [deliveries, targets] = KeptTargets<3>::make();
    for (const int i : {1, 2, 0}) looper->createTarnMsgLooper(&targets[i]);
    char data[] = {'a', 'b'};
    EXPECT_TRUE(looper->sendMsg(5, data, 2));
    const std::vector<Delivery> all = deliveries.all();
    ASSERT_EQ(all.size(), 3u);
    for (int i = 0; i < 3; i++) {
        EXPECT_EQ(all[i].target, &targets[i]);
        EXPECT_EQ(all[i].thread, std::this_thread::get_id());
        EXPECT_EQ(all[i].msgType, 5u);
        EXPECT_EQ(all[i].bytes, "ab");
    }
    for (Target& target : targets) looper->removeTarnMsgLooper(&target);
    EXPECT_FALSE(looper->sendMsg(5, data, 2));
}

TEST(TarnClientLooper, QueuesRecordsWithoutData) {
    sp<TarnClientLooper> looper = new TarnClientLooper;
    auto& [deliveries, targets] = KeptTargets<1>::make();
    char byte = 'a';
    EXPECT_TRUE(looper->postMsg(1, nullptr, 7));
    EXPECT_TRUE(looper->postMsg(2, &byte, 0));
    EXPECT_TRUE(looper->postMsg(3, &byte, 1));
    looper->createTarnMsgLooper(&targets[0]);
    ASSERT_TRUE(eventually([&, &posted = deliveries] { return posted.all().size() == 3; }));
    const std::vector<Delivery> all = deliveries.all();
    const char* const bytes[] = {"", "", "a"};
    for (unsigned int i = 0; i < 3; i++) {
        EXPECT_EQ(all[i].msgType, i + 1);
        EXPECT_EQ(all[i].bytes, bytes[i]);
        EXPECT_NE(all[i].thread, std::this_thread::get_id());
    }
    looper->removeTarnMsgLooper(&targets[0]);
}

/** A looper that sees what its own thread sends. */
class DerivedLooper : public TarnClientLooper {
  public:
    bool sendMsg(unsigned int msgType, void*, unsigned int) override {
        sent = msgType;
        return false;
    }

    std::atomic<unsigned int> sent{0};
};

TEST(TarnClientLooper, SendsThroughADerivedLoopersOperation) {
    const sp<DerivedLooper> looper = new DerivedLooper;
    auto& [deliveries, targets] = KeptTargets<1>::make();
    looper->createTarnMsgLooper(&targets[0]);
    looper->postMsg(9, nullptr, 0);
    EXPECT_TRUE(eventually([&] { return looper->sent == 9; }));
    EXPECT_TRUE(deliveries.all().empty());
}

TEST(TarnClientLooper, OutlivesItsLastReferenceWhileItsThreadRuns) {
    auto& [deliveries, targets] = KeptTargets<1>::make();
    {
        const sp<TarnClientLooper> looper = new TarnClientLooper;
        looper->createTarnMsgLooper(&targets[0]);
        looper->postMsg(4, nullptr, 0);
    }
    ASSERT_TRUE(eventually([&, &posted = deliveries] { return posted.all().size() == 1; }));
    EXPECT_EQ(deliveries.all()[0].msgType, 4u);
}

}  // namespace
