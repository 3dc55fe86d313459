#include <android/log.h>
#include <binder/Parcel.h>
#include <gtest/gtest.h>
#include <tarn/TarnManager.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "tests/support/FakeHwTarn.h"
#include "tools/tarnctl/session/EventCollector.h"
#include "tools/tarnctl/session/LibraryLog.h"
#include "tools/tarnctl/session/Session.h"

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
