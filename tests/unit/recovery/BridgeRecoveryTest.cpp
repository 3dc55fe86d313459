#include <binder/IServiceManager.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tarn/DeathNotifier.h>
#include <tarn/TarnClient.h>
#include <tarn/TarnRecovery.h>
#include <unistd.h>

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "host/HostServiceManager.h"
#include "tests/support/BackgroundCall.h"
#include "tests/support/Eventually.h"
#include "tests/support/RelayBinder.h"

using android::DeathNotifier;
using android::defaultServiceManager;
using android::ITarnClient;
using android::ITarnRecoveryListener;
using android::ITarnService;
using android::Parcel;
using android::sp;
using android::status_t;
using android::String16;
using android::TarnClient;
using android::TarnRecovery;
using namespace tarn::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const String16 kName("tarn.service");

class FakeService : public android::BnTarnService {
  public:
    int connect(int pid, const sp<ITarnClient>& client) override {
        if (atConnect) atConnect();
        std::lock_guard<std::mutex> guard(mLock);
        EXPECT_EQ(pid, getpid());
        mClients.push_back(client);
        return -1;
    }

    status_t invoke(const Parcel&, Parcel*) override { return android::OK; }

    std::vector<sp<ITarnClient>> clients() {
        std::lock_guard<std::mutex> guard(mLock);
        return mClients;
    }

    std::function<void()> atConnect;

  private:
    std::mutex mLock;
    std::vector<sp<ITarnClient>> mClients;
};

/** "tarn.service" in another process, as it seems; it is started and killed. */
class Service {
  public:
    Service() : mFake(new FakeService), mRelay(new RelayBinder(mFake)) {
        defaultServiceManager()->addService(kName, mRelay);
    }
    ~Service() {
        if (mAlive) kill();
    }

    void kill() {
        mAlive = false;
        android::host::removeService(kName);
        mRelay->die();
    }

    FakeService* operator->() const { return mFake.get(); }
    int pings() const { return mRelay->pings(); }

  private:
    sp<FakeService> mFake;
    sp<RelayBinder> mRelay;
    bool mAlive = true;
};

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

  private:
    void add(const std::string& word) {
        std::lock_guard<std::mutex> guard(mLock);
        mWords.push_back(word);
    }

    std::mutex mLock;
    std::vector<std::string> mWords;
};

class BridgeRecovery : public testing::Test {
  protected:
    // The process's reference outlives a test; this empties it.
    ~BridgeRecovery() override { sp<DeathNotifier>(new DeathNotifier)->binderDied(nullptr); }

    status_t invoke() {
        Parcel data;
        data.writeInterfaceToken(ITarnService::descriptor);
        Parcel reply;
        return client->invoke(data, &reply);
    }

    const sp<TarnClient> client = new TarnClient;
    TarnRecovery recovery{client};
};

TEST_F(BridgeRecovery, RegistersTheClientOnceWithEachService) {
    Service first;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(recovery.recover(), TarnRecovery::NOTHING_TO_DO);
    EXPECT_THAT(first->clients(), ElementsAre(client));
    first.kill();
    Service second;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(recovery.recover(), TarnRecovery::NOTHING_TO_DO);
    EXPECT_THAT(second->clients(), ElementsAre(client));
    EXPECT_EQ(first->clients().size(), 1u);
}

TEST_F(BridgeRecovery, DoesNotWaitForAServiceThatIsAway) {
    EXPECT_EQ(recovery.recover(), TarnRecovery::STILL_AWAY);
    Service service;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    service.kill();
    EXPECT_EQ(recovery.recover(), TarnRecovery::STILL_AWAY);
}

TEST_F(BridgeRecovery, RegistersEveryClientThatHasOne) {
    const sp<TarnClient> otherClient = new TarnClient;
    TarnRecovery other(otherClient);
    Service first;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(other.recover(), TarnRecovery::RECOVERED);
    first.kill();
    Service second;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(other.recover(), TarnRecovery::RECOVERED);
    EXPECT_THAT(second->clients(), ElementsAre(client, otherClient));
}

TEST_F(BridgeRecovery, LeavesInvokesToTheClient) {
    Service first;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(invoke(), android::OK);
    first.kill();
    Service second;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(invoke(), android::OK);
}

TEST_F(BridgeRecovery, StartsAgainWhenTheServiceDiesWhileTheClientIsRegistered) {
    Service dying;
    dying->atConnect = [&] { dying.kill(); };
    EXPECT_EQ(recovery.recover(), TarnRecovery::STILL_AWAY);
    Service service;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_THAT(service->clients(), ElementsAre(client));
}

TEST_F(BridgeRecovery, HoldsNobodyUpWhileItCallsTheService) {
    Service service;
    Gate gate;
    service->atConnect = [&gate] { gate.pass(); };
    BackgroundCall held([&] { EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED); });
    ASSERT_TRUE(eventually([&] { return gate.arrived(); }));
    EXPECT_EQ(recovery.recover(), TarnRecovery::STILL_AWAY);
    gate.open();
    EXPECT_TRUE(eventually([&] { return held.returned(); }));
    EXPECT_EQ(gate.arrivals(), 1);
}

TEST_F(BridgeRecovery, WatchesAndTells) {
    Told told;
    EXPECT_EQ(recovery.start(&told, 1), 0);
    ASSERT_TRUE(told.waitFor(1));
    Service first;
    ASSERT_TRUE(told.waitFor(2));
    EXPECT_THAT(first->clients(), ElementsAre(client));
    first.kill();
    ASSERT_TRUE(told.waitFor(3));
    Service second;
    ASSERT_TRUE(told.waitFor(4));
    recovery.stop();
    EXPECT_THAT(second->clients(), ElementsAre(client));
    EXPECT_THAT(told.words(), ElementsAre("lost", "back", "lost", "back"));
}

// The first service stays the one that is known until the second has the client.
TEST_F(BridgeRecovery, TellsOfNoLossWhileAnotherThreadRegistersTheClient) {
    Service first;
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    first.kill();
    Service second;
    Gate gate;
    second->atConnect = [&gate] { gate.pass(); };
    BackgroundCall held([&] { EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED); });
    ASSERT_TRUE(eventually([&] { return gate.arrived(); }));
    Told told;
    const int before = first.pings();
    EXPECT_EQ(recovery.start(&told, 1), 0);
    // With the second look, the first one has been told of.
    EXPECT_TRUE(eventually([&] { return first.pings() >= before + 2; }));
    recovery.stop();
    gate.open();
    EXPECT_TRUE(eventually([&] { return held.returned(); }));
    EXPECT_THAT(told.words(), IsEmpty());
}

TEST_F(BridgeRecovery, TakesAServiceOfItsOwnProcess) {
    const sp<FakeService> service = new FakeService;
    defaultServiceManager()->addService(kName, service);
    EXPECT_EQ(recovery.recover(), TarnRecovery::RECOVERED);
    EXPECT_EQ(recovery.recover(), TarnRecovery::NOTHING_TO_DO);
    EXPECT_THAT(service->clients(), ElementsAre(client));
    android::host::removeService(kName);
}

}  // namespace
