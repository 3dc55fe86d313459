// "tarn.service" in one process, its clients in others.

#include <binder/IServiceManager.h>
#include <binder/ProcessState.h>
#include <gtest/gtest.h>
#include <tarn/TarnClient.h>
#include <tarn/TarnService.h>

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <sstream>
#include <thread>

#include "service/ServiceReference.h"
#include "tests/process/Desk.h"
#include "tests/process/ProcessTest.h"

namespace tarn::test {
namespace {

using android::IBinder;
using android::ITarnClientCallback;
using android::ITarnService;
using android::Parcel;
using android::sp;
using android::status_t;
using android::String16;
using android::TarnClient;

constexpr int kRestarts = 20;

/** Publishes the service; a line "TYPE SIZE" from the test notifies all clients. */
CHILD(bridge) {
    android::ProcessState::self()->startThreadPool();
    android::TarnService::instantiate();
    tell("published");
    for (std::string line = listen(); !line.empty(); line = listen()) {
        unsigned int type = 0;
        unsigned int size = 0;
        std::istringstream(line) >> type >> size;
        std::string bytes(size, 'x');
        android::sTarnPlatform->notify(type, bytes.data(), size, nullptr);
        tell("notified");
    }
    return 0;
}

class Callback : public ITarnClientCallback {
  public:
    void notify(unsigned int msgType, void*, unsigned int size, void*) override {
        std::lock_guard<std::mutex> guard(mLock);
        mTypes.push_back(msgType);
        mSizes.push_back(size);
    }

    std::vector<unsigned int> types() {
        std::lock_guard<std::mutex> guard(mLock);
        return mTypes;
    }

    std::vector<unsigned int> sizes() {
        std::lock_guard<std::mutex> guard(mLock);
        return mSizes;
    }

  private:
    std::mutex mLock;
    std::vector<unsigned int> mTypes;
    std::vector<unsigned int> mSizes;
};

/** Connects and tells of every notification; in the role "slow" it stays in the first. */
class TellingCallback : public ITarnClientCallback {
  public:
    explicit TellingCallback(bool slow) : mSlow(slow) {}

    void notify(unsigned int msgType, void*, unsigned int size, void*) override {
        tell(std::to_string(msgType) + " " + std::to_string(size));
        if (mSlow) std::this_thread::sleep_for(std::chrono::hours(1));
    }

  private:
    bool mSlow;
};

CHILD(client) {
    android::ProcessState::self()->startThreadPool();
    const bool slow = !arguments.empty() && arguments[0] == "slow";
    const sp<TarnClient> client = new TarnClient(new TellingCallback(slow));
    client->connect();
    tell("connected");
    listen();
    return 0;
}

std::unique_ptr<Child> startService() {
    auto service = std::make_unique<Child>("bridge");
    EXPECT_EQ(service->readLine(), "published");
    return service;
}

std::unique_ptr<Child> startClient(const std::vector<std::string>& arguments = {}) {
    auto client = std::make_unique<Child>("client", arguments);
    EXPECT_EQ(client->readLine(), "connected");
    return client;
}

void notifyClients(Child* service, unsigned int type, unsigned int size) {
    service->writeLine(std::to_string(type) + " " + std::to_string(size));
    EXPECT_EQ(service->readLine(), "notified");
}

status_t invokeSome(TarnClient* client, size_t size) {
    Parcel data;
    data.writeInterfaceToken(ITarnService::descriptor);
    data.write(std::string(size, 'y').data(), size);
    Parcel reply;
    return client->invoke(data, &reply);
}

/** Whether this process has forgotten a service that died. */
bool serviceForgotten() {
    android::AutoMutex guard(android::gServiceLock);
    return android::gTarnService == nullptr;
}

class Bridge : public testing::Test {
  protected:
    void SetUp() override {
        android::ProcessState::self()->startThreadPool();
        service = startService();
    }

    void TearDown() override {
        if (service != nullptr) service->kill();
        // The next test's client must not find the reference to this one's service.
        EXPECT_TRUE(eventually(serviceForgotten));
    }

    std::unique_ptr<Child> service;
    const sp<Callback> callback = new Callback;
    const sp<TarnClient> client = new TarnClient(callback);
};

TEST_F(Bridge, NotifiesAClientOnceThatConnectedTwice) {
    EXPECT_EQ(client->connect(), 0);
    EXPECT_EQ(client->connect(), 0);
    notifyClients(service.get(), 7, 4);
    notifyClients(service.get(), 8, 0);
    ASSERT_TRUE(eventually([&] { return callback->types().size() == 2; }));
    EXPECT_EQ(callback->types(), (std::vector<unsigned int>{7, 8}));
    EXPECT_EQ(callback->sizes(), (std::vector<unsigned int>{4, 0}));
}

TEST_F(Bridge, CarriesInvokesAndTheServicesAnswer) {
    EXPECT_EQ(invokeSome(client.get(), 16), -1);
    EXPECT_EQ(invokeSome(client.get(), 1024 * 1024), -1);
    notifyClients(service.get(), 9, 4);
    EXPECT_TRUE(eventually([&] { return callback->types().size() == 1; }));
}

TEST_F(Bridge, CarriesNotificationsOfAMebibyte) {
    client->connect();
    notifyClients(service.get(), 1, 1024 * 1024);
    ASSERT_TRUE(eventually([&] { return callback->sizes().size() == 1; }));
    EXPECT_EQ(callback->sizes()[0], 1024u * 1024u);
}

TEST_F(Bridge, ReachesFourClientsAtOnce) {
    std::vector<std::unique_ptr<Child>> clients;
    for (int i = 0; i < 4; i++) clients.push_back(startClient());
    for (unsigned int type = 1; type <= 3; type++) notifyClients(service.get(), type, 4);
    for (const auto& other : clients) {
        for (unsigned int type = 1; type <= 3; type++) {
            EXPECT_EQ(other->readLine(), std::to_string(type) + " 4");
        }
    }
}

TEST_F(Bridge, IsNotHeldUpByAClientThatBlocks) {
    const auto slow = startClient({"slow"});
    client->connect();
    for (unsigned int type = 1; type <= 20; type++) notifyClients(service.get(), type, 4);
    EXPECT_EQ(slow->readLine(), "1 4");
    EXPECT_TRUE(eventually([&] { return callback->types().size() == 20; }));
    slow->kill();
}

TEST_F(Bridge, GoesOnWithoutAClientThatDied) {
    const auto dead = startClient();
    client->connect();
    dead->kill();
    for (unsigned int type = 1; type <= 5; type++) notifyClients(service.get(), type, 4);
    EXPECT_TRUE(eventually([&] { return callback->types().size() == 5; }));
}

TEST_F(Bridge, RefusesHostileTransactionsAndGoesOn) {
    client->connect();
    const sp<IBinder> binder =
            android::defaultServiceManager()->checkService(String16("tarn.service"));
    ASSERT_NE(binder, nullptr);
    Parcel reply;
    Parcel untitled;
    untitled.writeInt32(1);
    EXPECT_EQ(binder->transact(ITarnService::CONNECT, untitled, &reply), -1);
    EXPECT_EQ(binder->transact(ITarnService::INVOKE, untitled, &reply), -1);
    Parcel truncated;
    truncated.writeInterfaceToken(ITarnService::descriptor);
    EXPECT_NE(binder->transact(ITarnService::CONNECT, truncated, &reply), android::OK);
    for (int i = 0; i < 10000; i++) {
        binder->transact(ITarnService::INVOKE, untitled, nullptr, IBinder::FLAG_ONEWAY);
    }
    notifyClients(service.get(), 3, 4);
    EXPECT_TRUE(eventually([&] { return callback->types().size() == 1; }));
}

TEST_F(Bridge, SurvivesItsServicesRestartsUnderLoad) {
    client->connect();
    std::atomic<bool> stop{false};
    std::vector<std::thread> callers;
    for (int i = 0; i < 4; i++) {
        callers.emplace_back([&] {
            while (!stop) invokeSome(client.get(), 64);
        });
    }
    size_t descriptors = 0;
    size_t threads = 0;
    for (int round = 1; round <= kRestarts; round++) {
        service->kill();
        service = startService();
        // The client registers again by itself, as soon as a caller has found the new service.
        const size_t before = callback->types().size();
        EXPECT_TRUE(eventually([&] {
            notifyClients(service.get(), static_cast<unsigned int>(round), 4);
            return callback->types().size() > before;
        })) << "restart "
            << round;
        if (round == 1) threads = runningThreads();
        if (round == kRestarts / 2) descriptors = openDescriptors();
    }
    EXPECT_TRUE(eventually([&] { return openDescriptors() <= descriptors; }))
            << openDescriptors() << " after " << descriptors;
    EXPECT_LE(runningThreads(), threads + kPoolGrowth);
    EXPECT_LE(countsHere().proxies, 2);
    stop = true;
    for (std::thread& caller : callers) caller.join();
}

}  // namespace
}  // namespace tarn::test
