#include <binder/IServiceManager.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tarn/DeathNotifier.h>
#include <tarn/TarnClient.h>
#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <string>
#include <thread>
#include <vector>

#include "host/HostServiceManager.h"
#include "service/ServiceReference.h"
#include "tests/support/BackgroundCall.h"
#include "tests/support/Eventually.h"
#include "tests/support/LogCapture.h"
#include "tests/support/RelayBinder.h"

using android::DeathNotifier;
using android::defaultServiceManager;
using android::ITarnClient;
using android::ITarnClientCallback;
using android::ITarnService;
using android::Parcel;
using android::sp;
using android::status_t;
using android::String16;
using android::TarnClient;
using namespace tarn::test;
using testing::Contains;
using testing::ElementsAre;

namespace {

const String16 kName("tarn.service");

class FakeService : public android::BnTarnService {
  public:
    int connect(int pid, const sp<ITarnClient>& client) override {
        pids.push_back(pid);
        clients.push_back(client);
        return -1;
    }

    status_t invoke(const Parcel& data, Parcel* reply) override {
        reply->writeInt32(data.readInt32() + 1);
        return android::OK;
    }

    std::vector<int> pids;
    std::vector<sp<ITarnClient>> clients;
};

class Callback : public ITarnClientCallback {
  public:
    void notify(unsigned int msgType, void* data, unsigned int size, void*) override {
        types.push_back(msgType);
        bytes.emplace_back(static_cast<char*>(data), size);
    }

    std::vector<unsigned int> types;
    std::vector<std::string> bytes;
};

/** A service that can die, published as "tarn.service". */
class Published {
  public:
    Published() : service(new FakeService), relay(new RelayBinder(service)) {
        defaultServiceManager()->addService(kName, relay);
    }

    ~Published() { withdraw(); }

    void withdraw() { android::host::removeService(kName); }

    sp<FakeService> service;
    sp<RelayBinder> relay;
};

class TarnClientTest : public testing::Test {
  protected:
    // The process's reference outlives a test; this empties it.
    ~TarnClientTest() override { sp<DeathNotifier>(new DeathNotifier)->binderDied(nullptr); }
};

int invokeWith(TarnClient* client, int value) {
    Parcel data;
    data.writeInterfaceToken(ITarnService::descriptor);
    data.writeInt32(value);
    Parcel reply;
    if (client->invoke(data, &reply) != android::OK) return -1;
    return reply.readInt32();
}

TEST_F(TarnClientTest, ConnectsTwiceTheFirstTimeAndOnceLater) {
    Published published;
    const sp<TarnClient> client = new TarnClient;
    LogCapture log;
    EXPECT_EQ(client->connect(), 0);
    EXPECT_THAT(log.messages()[0], "connect TarnServer");
    EXPECT_EQ(log.lines()[0].tag, "Zunt@TarnClient");
    EXPECT_THAT(published.service->pids, ElementsAre(getpid(), getpid()));
    EXPECT_EQ(client->connect(), 0);
    EXPECT_EQ(published.service->pids.size(), 3u);
    EXPECT_EQ(published.relay->links(), 1);
}

TEST_F(TarnClientTest, RegistersAClientThatOnlyInvokes) {
    Published published;
    const sp<TarnClient> client = new TarnClient;
    EXPECT_EQ(invokeWith(client.get(), 41), 42);
    EXPECT_THAT(published.service->pids, ElementsAre(getpid()));
    EXPECT_EQ(published.service->clients[0].get(), client.get());
}

TEST_F(TarnClientTest, WaitsUntilTheServiceIsPublished) {
    const sp<TarnClient> client = new TarnClient;
    LogCapture log;
    std::atomic<bool> connected{false};
    std::thread thread([&] {
        client->connect();
        connected = true;
    });
    EXPECT_TRUE(eventually([&] {
        return testing::Value(log.messages(), Contains("TarnService not published..."));
    }));
    EXPECT_FALSE(connected);
    Published published;
    thread.join();
    for (const LogLine& line : log.lines()) {
        if (line.message == "TarnService not published...") {
            EXPECT_EQ(line.function, "getTarnService");
        }
    }
    EXPECT_EQ(published.service->pids.size(), 2u);
}

TEST_F(TarnClientTest, FindsARestartedService) {
    const sp<TarnClient> client = new TarnClient;
    Published first;
    EXPECT_EQ(invokeWith(client.get(), 1), 2);
    first.withdraw();
    LogCapture log;
    first.relay->die();
    ASSERT_EQ(log.lines().size(), 1u);
    EXPECT_EQ(log.lines()[0].message, "Tarn service died!");
    EXPECT_EQ(log.lines()[0].priority, 5);

    Published second;
    EXPECT_EQ(invokeWith(client.get(), 2), 3);
    EXPECT_THAT(second.service->pids, ElementsAre(getpid()));
    EXPECT_EQ(second.relay->links(), 1);
    EXPECT_NE(android::gDeathNotifier, nullptr);
    EXPECT_EQ(first.relay->recipient(), android::gDeathNotifier);
    EXPECT_EQ(second.relay->recipient(), android::gDeathNotifier);
}

TEST_F(TarnClientTest, MayHearOfADeathWhileItInvokes) {
    Published published;
    const sp<TarnClient> client = new TarnClient;
    EXPECT_EQ(invokeWith(client.get(), 1), 2);
    std::thread deaths([] {
        const sp<DeathNotifier> notifier = new DeathNotifier;
        for (int i = 0; i < 200; i++) notifier->binderDied(nullptr);
    });
    for (int i = 0; i < 200; i++) EXPECT_EQ(invokeWith(client.get(), i), i + 1);
    deaths.join();
}

TEST_F(TarnClientTest, HoldsUpAnInvokeUntilTheServiceIsPublished) {
    const sp<TarnClient> client = new TarnClient;
    LogCapture log;
    std::atomic<int> answer{0};
    BackgroundCall invoke([&] { answer = invokeWith(client.get(), 41); });
    EXPECT_TRUE(eventually([&] {
        return testing::Value(log.messages(), Contains("TarnService not published..."));
    }));
    EXPECT_FALSE(invoke.returned());
    Published published;
    EXPECT_TRUE(eventually([&] { return invoke.returned(); }));
    EXPECT_EQ(answer, 42);
}

TEST_F(TarnClientTest, LooksOnWhenTheServiceDiedBeforeItsDeathCouldBeHeardOf) {
    Published dead;
    dead.relay->die();
    const sp<TarnClient> client = new TarnClient;
    LogCapture log;
    std::atomic<int> answer{0};
    BackgroundCall invoke([&] { answer = invokeWith(client.get(), 41); });
    EXPECT_TRUE(eventually([&] {
        return invoke.returned() ||
               testing::Value(log.messages(), Contains("TarnService not published..."));
    }));
    EXPECT_FALSE(invoke.returned());
    Published restarted;
    EXPECT_TRUE(eventually([&] { return invoke.returned(); }));
    EXPECT_EQ(answer, 42);
    EXPECT_EQ(restarted.relay->links(), 1);
}

TEST_F(TarnClientTest, TakesAServiceOfItsOwnProcessThatCannotBeLinkedTo) {
    const sp<FakeService> service = new FakeService;
    defaultServiceManager()->addService(kName, service);
    const sp<TarnClient> client = new TarnClient;
    Parcel data;
    data.writeInt32(41);
    Parcel reply;
    EXPECT_EQ(client->invoke(data, &reply), android::OK);
    EXPECT_EQ(service->pids.size(), 1u);
    android::host::removeService(kName);
}

TEST_F(TarnClientTest, KeepsTheProcessReferenceUntilTheServiceDies) {
    Published published;
    const sp<TarnClient> client = new TarnClient;
    const sp<ITarnService>& reference = android::getTarnService(client.get());
    EXPECT_NE(reference, nullptr);
    EXPECT_EQ(&reference, &android::getTarnService(client.get()));
    published.relay->die();
    EXPECT_EQ(reference, nullptr);
}

TEST_F(TarnClientTest, HandsANotificationToItsCallbackAndFreesItsBuffer) {
    const sp<Callback> callback = new Callback;
    const sp<TarnClient> client = new TarnClient(callback);
    const sp<ITarnClient> proxy = ITarnClient::asInterface(new RelayBinder(client));
    char bytes[] = {'a', 'b', 'c', 'd'};
    LogCapture log;
    proxy->notify(3, bytes, 4, nullptr);
    EXPECT_THAT(callback->types, ElementsAre(3u));
    EXPECT_THAT(callback->bytes, ElementsAre("abcd"));
    EXPECT_THAT(log.messages(), ElementsAre("callback application type=3", "back from callback"));
    EXPECT_EQ(log.lines()[0].priority, 3);
}

TEST_F(TarnClientTest, FreesABufferOnceThatItsCallbackHandsOn) {
    /** Hands every notification on to other clients of the process, as a local service does. */
    class Relay : public ITarnClientCallback {
      public:
        void notify(unsigned int msgType, void* data, unsigned int size, void* ext) override {
            for (const sp<TarnClient>& client : clients) client->notify(msgType, data, size, ext);
        }

        std::vector<sp<TarnClient>> clients;
    };
    const sp<Callback> callback = new Callback;
    const sp<Relay> relay = new Relay;
    relay->clients = {new TarnClient(callback), new TarnClient(callback)};
    const sp<TarnClient> client = new TarnClient(relay);
    const sp<ITarnClient> proxy = ITarnClient::asInterface(new RelayBinder(client));
    char bytes[] = {'a', 'b', 'c', 'd'};
    proxy->notify(3, bytes, 4, nullptr);
    EXPECT_THAT(callback->bytes, ElementsAre("abcd", "abcd"));
}

TEST_F(TarnClientTest, HandsItsBufferOverOnce) {
    class TakingClient : public TarnClient {
      public:
        void notify(unsigned int, void* data, unsigned int, void*) override {
            char other = 'a';
            taken = {takeBuffer(nullptr), takeBuffer(&other), takeBuffer(data), takeBuffer(data)};
            delete[] static_cast<uint8_t*>(data);
        }

        std::vector<bool> taken;
    };
    const sp<TakingClient> client = new TakingClient;
    const sp<ITarnClient> proxy = ITarnClient::asInterface(new RelayBinder(client));
    char bytes[] = {'a', 'b', 'c', 'd'};
    for (int i = 0; i < 2; i++) {
        proxy->notify(3, bytes, 4, nullptr);
        EXPECT_THAT(client->taken, ElementsAre(false, false, true, false));
    }
}

TEST_F(TarnClientTest, LeavesABufferOfThisProcessToItsOwner) {
    const sp<Callback> callback = new Callback;
    const sp<TarnClient> client = new TarnClient(callback);
    char bytes[] = {'a', 'b', 'c', 'd'};
    client->notify(3, bytes, 4, nullptr);
    EXPECT_THAT(callback->bytes, ElementsAre("abcd"));
}

TEST_F(TarnClientTest, LogsBothLinesWithoutACallback) {
    const sp<TarnClient> client = new TarnClient;
    LogCapture log;
    client->notify(8, nullptr, 0, nullptr);
    EXPECT_THAT(log.messages(), ElementsAre("callback application type=8", "back from callback"));
}

TEST_F(TarnClientTest, TakesACallbackFromADerivedClass) {
    class DerivedClient : public TarnClient {
      public:
        explicit DerivedClient(const sp<ITarnClientCallback>& callback) { mCallback = callback; }
        void listenWith(const sp<ITarnClientCallback>& callback) { setCallback(callback); }
    };
    const sp<Callback> first = new Callback;
    const sp<Callback> second = new Callback;
    const sp<DerivedClient> client = new DerivedClient(first);
    client->notify(8, nullptr, 0, nullptr);
    client->listenWith(second);
    client->notify(9, nullptr, 0, nullptr);
    EXPECT_THAT(first->types, ElementsAre(8u));
    EXPECT_THAT(second->types, ElementsAre(9u));
}

TEST_F(TarnClientTest, SaysThatItIsMadeAndDestroyed) {
    LogCapture log;
    sp<TarnClient> client = new TarnClient;
    client.clear();
    EXPECT_THAT(log.messages(), ElementsAre("constructor", "destructor"));
    EXPECT_EQ(log.lines()[0].tag, "Zunt@TarnClient");
    EXPECT_EQ(log.lines()[0].priority, 3);
}

}  // namespace
