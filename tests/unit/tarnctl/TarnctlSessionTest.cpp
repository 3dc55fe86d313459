#include <android/log.h>
#include <binder/Parcel.h>
#include <gtest/gtest.h>
#include <tarn/TarnManager.h>

#include <algorithm>
#include <functional>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "tests/support/FakeHwTarn.h"
#include "tools/tarnctl/session/EventCollector.h"
#include "tools/tarnctl/session/LibraryLog.h"
#include "tools/tarnctl/session/Session.h"
#include "tools/tarnctl/verbs/Verbs.h"

namespace tarnctl {

using android::sp;
using tarn::test::PublishedFake;

namespace {

constexpr int kTimes = 200;

// What several threads do at once is safe: the thread sanitizer looks. They share references, since
// the count of a copied one would order them.

TEST(TarnctlEvents, AreTakenWhileTheyCome) {
    const sp<EventCollector> collector = new EventCollector;
    std::vector<std::thread> threads;
    for (int32_t source = 0; source < 2; source++) {
        threads.emplace_back([&collector, source] {
            android::Parcel data;
            data.writeInt32(source);
            for (int i = 0; i < kTimes; i++) collector->notify(7, 0, 0, &data);
        });
    }
    int taken = 0;
    threads.emplace_back([&collector, &taken] {
        for (int i = 0; i < kTimes; i++) taken += collector->next() ? 1 : 0;
    });
    for (std::thread& thread : threads) thread.join();
    while (collector->next()) taken++;
    EXPECT_EQ(taken, 2 * kTimes);
}

TEST(TarnctlEvents, TellOfTheServiceWhileItComesAndGoes) {
    const sp<EventCollector> collector = new EventCollector;
    std::thread recovery([&collector] {
        for (int i = 0; i < kTimes; i++) {
            collector->serviceLost();
            collector->serviceBack();
        }
    });
    int changes = 0;
    bool fell = false;
    for (int i = 0; i < kTimes; i++) {
        const int now = collector->changes();
        fell = fell || now < changes;
        changes = now;
    }
    recovery.join();
    EXPECT_FALSE(fell);
    EXPECT_EQ(collector->changes(), 2 * kTimes);
    EXPECT_FALSE(collector->serviceDied());
}

TEST(TarnctlEvents, TellOfTheServicesDeathWhileItDies) {
    const sp<EventCollector> collector = new EventCollector;
    std::thread pool([&collector] { collector->serviceDied(0, nullptr); });
    const bool early = collector->serviceDied();
    pool.join();
    EXPECT_TRUE(collector->serviceDied());
    EXPECT_EQ(collector->changes(), 0) << early;
}

TEST(TarnctlEvents, AreCollectedByTwoThatStartAtOnce) {
    PublishedFake service;
    const sp<android::ITarnManager> manager = new android::TarnManager;
    std::vector<std::thread> threads;
    for (int i = 0; i < 2; i++) {
        threads.emplace_back([&manager] { EventCollector::start(manager.get()); });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_GT(service->registrations(), 0);
}

/** Hands a collector events whose types count up, as if they came from the board. */
class EventSource {
  public:
    void raise(EventCollector& events, size_t count) {
        const android::Parcel nothing;
        for (size_t i = 0; i < count; i++) events.notify(mType++, 0, 0, &nothing);
    }

  private:
    unsigned int mType = 0;
};

TEST(TarnctlEvents, AreCountedWhenTheOldestAreLeftOut) {
    const sp<EventCollector> collector = new EventCollector;
    EventSource source;
    source.raise(*collector, 10'000);
    EXPECT_EQ(collector->next()->leftOut, 0u);
    source.raise(*collector, 4);
    const auto next = collector->next();
    EXPECT_EQ(next->type, 4u);
    EXPECT_EQ(next->leftOut, 3u);
    EXPECT_EQ(collector->next()->leftOut, 0u);
    size_t rest = 0;
    while (collector->next()) rest++;
    EXPECT_EQ(rest, 9'998u);
}

/** Where a monitor prints to; each time that it has printed an event, something happens. */
class Printed : public std::stringbuf {
  public:
    std::function<void()> atFlush = [] {};

  private:
    int sync() override {
        std::exchange(atFlush, [] {})();
        return 0;
    }
};

/** A monitor whose events are handed to its session's collector. */
class TarnctlMonitor : public testing::Test {
  protected:
    TarnctlMonitor() { mOptions.serviceOnly = true; }

    EventCollector& events() { return mSession.events(); }

    /** Runs it for that many events, with what it printed before forgotten. */
    int run(int count, JsonStyle style = JsonStyle::kNone) {
        mOptions.count = count;
        printed.str("");
        mErrors.str("");
        Context context{
                mSession, mOptions, Output(mOut, style), mDiagnostics, Streams{mIn, mOut, mErrors},
                false};
        return execute(context, {"monitor"});
    }

    std::string errors() const { return mErrors.str(); }

    Printed printed;
    EventSource source;

  private:
    PublishedFake mService;
    std::istringstream mIn;
    std::ostream mOut{&printed};
    std::ostringstream mErrors;
    const Diagnostics mDiagnostics{mErrors, false};
    Options mOptions;
    Session mSession{mOptions, mDiagnostics, false};
};

TEST_F(TarnctlMonitor, SaysHowManyEventsWereLeftOut) {
    source.raise(events(), 10'001);
    EXPECT_EQ(run(2), 0);
    EXPECT_EQ(printed.str(), "event 0x0001 size 0\nevent 0x0002 size 0\n");
    EXPECT_EQ(errors(),
              "tarnctl: waiting for events\n"
              "tarnctl: 1 event was left out: more than 10000 waited\n");
    EXPECT_EQ(run(1), 0);
    EXPECT_EQ(errors(), "tarnctl: waiting for events\n");
}

TEST_F(TarnctlMonitor, SaysOnceHowManyEventsWereLeftOutInTwoPlaces) {
    source.raise(events(), 10'003);
    // The first event is printed, so that there is room for one more.
    printed.atFlush = [this] { source.raise(events(), 5); };
    EXPECT_EQ(run(2), 0);
    EXPECT_EQ(printed.str(), "event 0x0003 size 0\nevent 0x0008 size 0\n");
    EXPECT_EQ(errors(),
              "tarnctl: waiting for events\n"
              "tarnctl: 7 events were left out: more than 10000 waited\n");
}

TEST_F(TarnctlMonitor, SaysWhatWasLeftOutBeforeItSaysWhyItFailed) {
    source.raise(events(), 10'002);
    printed.atFlush = [this] { events().serviceDied(0, nullptr); };
    EXPECT_EQ(run(20'000), 4);
    EXPECT_EQ(errors(),
              "tarnctl: waiting for events\n"
              "tarnctl: 2 events were left out: more than 10000 waited\n"
              "tarnctl: the service died\n");
}

TEST_F(TarnctlMonitor, TellsInJsonBeforeWhichEventOthersWereLeftOut) {
    source.raise(events(), 10'002);
    EXPECT_EQ(run(2, JsonStyle::kShort), 0);
    EXPECT_EQ(printed.str(),
              "{\"data\":\"\",\"leftOut\":2,\"size\":0,\"type\":2}\n"
              "{\"data\":\"\",\"size\":0,\"type\":3}\n");
}

TEST(TarnctlSessions, MayBeginOnTwoThreadsAtOnce) {
    PublishedFake service;
    std::vector<std::thread> threads;
    for (int i = 0; i < 2; i++) {
        threads.emplace_back([] {
            Options options;
            options.serviceOnly = true;
            std::ostringstream err;
            Session session(options, Diagnostics(err, false), false);
            session.manager();
            EXPECT_EQ(err.str(), "");
        });
    }
    for (std::thread& thread : threads) thread.join();
}

TEST(TarnctlWarnings, AreTakenWhileTheyAreLogged) {
    routeLibraryLog(false);
    takeLibraryWarnings();
    std::vector<std::thread> threads;
    for (int source = 0; source < 2; source++) {
        threads.emplace_back([] {
            for (int i = 0; i < 20; i++) {
                __android_log_write(ANDROID_LOG_WARN, "test", "a warning");
                __android_log_write(ANDROID_LOG_INFO, "test", "no warning");
            }
        });
    }
    std::vector<std::string> taken;
    const auto take = [&taken] {
        for (std::string& warning : takeLibraryWarnings()) taken.push_back(std::move(warning));
    };
    for (int i = 0; i < 20; i++) take();
    for (std::thread& thread : threads) thread.join();
    take();
    EXPECT_EQ(std::count(taken.begin(), taken.end(), "a warning"), 40);
    EXPECT_EQ(std::count(taken.begin(), taken.end(), "no warning"), 0);
}

}  // namespace
}  // namespace tarnctl
