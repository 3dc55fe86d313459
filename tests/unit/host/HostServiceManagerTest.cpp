#include <binder/Binder.h>
#include <binder/IServiceManager.h>
#include <binder/ProcessState.h>
#include <gtest/gtest.h>
#include <utils/String8.h>

#include <atomic>
#include <future>
#include <string>
#include <thread>
#include <vector>

#include "host/HostServiceManager.h"
#include "tests/unit/host/HostEcho.h"

namespace android {
namespace {

class HostServiceManager : public testing::Test {
  protected:
    void TearDown() override { host::removeAllServices(); }

    const sp<IServiceManager> mManager = defaultServiceManager();
    const String16 mName{"tarn.test"};
};

TEST_F(HostServiceManager, FindsWhatWasAdded) {
    EXPECT_EQ(nullptr, mManager->getService(mName).get());
    const sp<IBinder> service = new BBinder;
    EXPECT_EQ(NO_ERROR, mManager->addService(mName, service));
    EXPECT_EQ(service, mManager->getService(mName));
    EXPECT_EQ(service, mManager->checkService(mName));
    EXPECT_EQ(service, mManager->waitForService(mName));
    EXPECT_FALSE(mManager->isDeclared(mName));
}

TEST_F(HostServiceManager, ReplacesAServiceOfTheSameName) {
    const sp<IBinder> second = new BBinder;
    mManager->addService(mName, new Echo);
    const int before = Echo::sDestroyed;
    EXPECT_EQ(NO_ERROR, mManager->addService(mName, second));
    EXPECT_EQ(before + 1, Echo::sDestroyed);
    EXPECT_EQ(second, mManager->getService(mName));
}

TEST_F(HostServiceManager, RefusesNoServiceAndABadName) {
    EXPECT_EQ(BAD_VALUE, mManager->addService(mName, nullptr));
    EXPECT_EQ(BAD_VALUE, mManager->addService(String16(), new BBinder));
    EXPECT_EQ(BAD_VALUE, mManager->addService(String16("white space"), new BBinder));
    EXPECT_EQ(BAD_VALUE,
              mManager->addService(String16(std::string(128, 'a').c_str()), new BBinder));
    EXPECT_EQ(NO_ERROR, mManager->addService(String16(std::string(127, 'a').c_str()), new BBinder));
}

TEST_F(HostServiceManager, ListsInOrderByPriority) {
    mManager->addService(String16("b"), new BBinder);
    mManager->addService(String16("a"), new BBinder);
    mManager->addService(String16("c"), new BBinder, false,
                         IServiceManager::DUMP_FLAG_PRIORITY_CRITICAL);
    const Vector<String16> all = mManager->listServices();
    ASSERT_EQ(3u, all.size());
    EXPECT_EQ(String16("a"), all[0]);
    EXPECT_EQ(String16("c"), all[2]);
    EXPECT_EQ(1u, mManager->listServices(IServiceManager::DUMP_FLAG_PRIORITY_CRITICAL).size());
}

TEST_F(HostServiceManager, TakesAServiceOutAgain) {
    mManager->addService(mName, new BBinder);
    EXPECT_TRUE(host::removeService(mName));
    EXPECT_FALSE(host::removeService(mName));
    EXPECT_EQ(nullptr, mManager->getService(mName).get());
}

TEST_F(HostServiceManager, WaitsForAService) {
    auto found = std::async(std::launch::async,
                            [this] { return mManager->waitForService(mName).get(); });
    const sp<IBinder> service = new BBinder;
    mManager->addService(mName, service);
    EXPECT_EQ(service.get(), found.get());
}

TEST_F(HostServiceManager, ServesSeveralThreadsAtOnce) {
    const sp<IBinder> service = new BBinder;
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; t++) {
        threads.emplace_back([&, t] {
            const String16 own(String8::format("tarn.test.%d", t));
            for (int i = 0; i < 200; i++) {
                if (mManager->addService(own, service) != NO_ERROR) wrong++;
                if (mManager->getService(own) != service) wrong++;
                mManager->listServices();
                if (!host::removeService(own)) wrong++;
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(0, wrong);
    EXPECT_TRUE(mManager->listServices().isEmpty());
}

TEST_F(HostServiceManager, GivesItselfAsTheContextObject) {
    const sp<IBinder> context = ProcessState::self()->getContextObject(nullptr);
    ASSERT_NE(nullptr, context.get());
    EXPECT_EQ(NO_ERROR, context->pingBinder());
}

}  // namespace
}  // namespace android
