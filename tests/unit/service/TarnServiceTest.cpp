#include <binder/IPCThreadState.h>
#include <binder/IServiceManager.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tarn/TarnService.h>

#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/BackgroundCall.h"
#include "tests/support/LogCapture.h"
#include "tests/support/RecordingManager.h"
#include "tests/support/RelayBinder.h"
#include "tests/support/TokenMark.h"

using android::BnTarnClient;
using android::BpTarnClient;
using android::BpTarnService;
using android::IBinder;
using android::IInterface;
using android::ITarnClient;
using android::ITarnPlatform;
using android::ITarnService;
using android::Parcel;
using android::sp;
using android::sTarnPlatform;
using android::status_t;
using android::String16;
using android::TarnService;
using namespace tarn::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Notification {
    unsigned int msgType;
    std::string bytes;
    void* ext;
};

class RecordingClient : public BnTarnClient {
  public:
    void notify(unsigned int msgType, void* data, unsigned int size, void* ext) override {
        received.push_back({msgType, std::string(static_cast<char*>(data), size), ext});
        if (takeBuffer(data)) delete[] static_cast<uint8_t*>(data);
    }

    std::vector<Notification> received;
};

class RecordingService : public android::BnTarnService {
  public:
    int connect(int pid, const sp<ITarnClient>& client) override {
        pids.push_back(pid);
        clients.push_back(client);
        return 17;
    }

    status_t invoke(const Parcel& data, Parcel* reply) override {
        payloads.push_back(data.readInt32());
        reply->writeInt32(5);
        return 3;
    }

    std::vector<int> pids;
    std::vector<sp<ITarnClient>> clients;
    std::vector<int> payloads;
};

Parcel* withToken(Parcel* parcel, const char* descriptor) {
    parcel->writeInterfaceToken(String16(descriptor));
    return parcel;
}

TEST(ITarnService, HasItsDescriptor) {
    EXPECT_EQ(ITarnService::descriptor, String16("android.ITarnService"));
    EXPECT_EQ(ITarnClient::descriptor, String16("android.ITarnClient"));
    const sp<RecordingService> service = new RecordingService;
    EXPECT_EQ(service->getInterfaceDescriptor(), ITarnService::descriptor);
}

TEST(ITarnService, IsTheObjectItselfWithinAProcessAndAProxyOutside) {
    const sp<RecordingService> service = new RecordingService;
    EXPECT_EQ(ITarnService::asInterface(nullptr), nullptr);
    EXPECT_EQ(ITarnService::asInterface(service).get(), service.get());
    const sp<RelayBinder> relay = new RelayBinder(service);
    const sp<ITarnService> proxy = ITarnService::asInterface(relay);
    EXPECT_NE(proxy.get(), service.get());
    EXPECT_EQ(IInterface::asBinder(proxy), relay);
}

TEST(ITarnService, KeepsTheLatestDefaultThatIsNotNull) {
    const sp<RecordingService> first = new RecordingService;
    const sp<RecordingService> second = new RecordingService;
    EXPECT_FALSE(ITarnService::setDefaultImpl(nullptr));
    EXPECT_TRUE(ITarnService::setDefaultImpl(first));
    EXPECT_TRUE(ITarnService::setDefaultImpl(second));
    EXPECT_FALSE(ITarnService::setDefaultImpl(nullptr));
    EXPECT_EQ(ITarnService::getDefaultImpl().get(), second.get());
    ITarnService::default_impl.clear();
}

TEST(ITarnClient, KeepsTheLatestDefaultThatIsNotNull) {
    const sp<RecordingClient> first = new RecordingClient;
    EXPECT_FALSE(ITarnClient::setDefaultImpl(nullptr));
    EXPECT_TRUE(ITarnClient::setDefaultImpl(first));
    EXPECT_FALSE(ITarnClient::setDefaultImpl(nullptr));
    EXPECT_EQ(ITarnClient::getDefaultImpl().get(), first.get());
    ITarnClient::default_impl.clear();
}

/** The other end of a proxy: keeps the last transaction as it was sent. */
class CapturingBinder : public android::BBinder {
  public:
    // A request's token carries the thread's policy, which one that came in before may have set.
    CapturingBinder() { android::IPCThreadState::self()->setStrictModePolicy(0); }

    uint32_t code = 0;
    uint32_t flags = 99;
    Bytes bytes;
    sp<IBinder> object;

    // Where an object is looked for in the request, if at all.
    size_t objectAt = 0;

  protected:
    status_t onTransact(uint32_t c, const Parcel& data, Parcel*, uint32_t f) override {
        code = c;
        flags = f;
        bytes.assign(data.data(), data.data() + data.dataSize());
        if (objectAt != 0) {
            data.setDataPosition(objectAt);
            object = data.readStrongBinder();
        }
        return android::OK;
    }
};

// An interface token is the strict mode word, the work source, the partition's mark and the name.
constexpr char kServiceToken[] =
        "00000080 ffffffff " TOKEN_MARK
        " 14000000 6100 6e00 6400 7200 6f00 6900 6400 2e00"
        "4900 5400 6100 7200 6e00 5300 6500 7200 7600 6900 6300 6500 0000 0000";
constexpr char kClientToken[] = "00000080 ffffffff " TOKEN_MARK
                                " 13000000 6100 6e00 6400 7200 6f00 6900 6400 2e00"
                                "4900 5400 6100 7200 6e00 4300 6c00 6900 6500 6e00 7400 0000";

TEST(BpTarnService, SendsAConnectAsTokenProcessAndClient) {
    const sp<CapturingBinder> remote = new CapturingBinder;
    const sp<RecordingClient> client = new RecordingClient;
    const Bytes beforeTheClient = hex(std::string(kServiceToken) + "41010000");
    remote->objectAt = beforeTheClient.size();
    sp<ITarnService>(new BpTarnService(remote))->connect(321, client);
    EXPECT_EQ(remote->code, 1u);
    EXPECT_EQ(remote->flags, 0u);
    ASSERT_GT(remote->bytes.size(), beforeTheClient.size());
    remote->bytes.resize(beforeTheClient.size());
    EXPECT_EQ(remote->bytes, beforeTheClient);
    EXPECT_EQ(remote->object, IInterface::asBinder(client));
}

TEST(BpTarnService, SendsAnInvokeAsItIs) {
    const sp<CapturingBinder> remote = new CapturingBinder;
    Parcel data;
    data.writeInt32(1);
    data.writeInt32(-2);
    Parcel reply;
    sp<ITarnService>(new BpTarnService(remote))->invoke(data, &reply);
    EXPECT_EQ(remote->code, 2u);
    EXPECT_EQ(remote->flags, 0u);
    EXPECT_EQ(remote->bytes, hex("01000000 feffffff"));
}

TEST(BpTarnClient, SendsANotificationAsTokenTypeAndBytes) {
    const sp<CapturingBinder> remote = new CapturingBinder;
    const sp<ITarnClient> proxy = new BpTarnClient(remote);
    char bytes[] = {'a', 'b', 'c', 'd', 'e'};
    proxy->notify(0x81020304, bytes, 5, bytes);
    EXPECT_EQ(remote->code, 1u);
    EXPECT_EQ(remote->flags, 1u);
    EXPECT_EQ(remote->bytes, hex(std::string(kClientToken) + "04030281 6162636465 000000"));
    for (char* nothing : {static_cast<char*>(nullptr), bytes}) {
        proxy->notify(5, nothing, nothing == nullptr ? 4 : 0, nullptr);
        EXPECT_EQ(remote->bytes, hex(std::string(kClientToken) + "05000000"));
    }
}

TEST(BpTarnService, CarriesAConnectAndItsAnswer) {
    const sp<RecordingService> service = new RecordingService;
    const sp<RecordingClient> client = new RecordingClient;
    const sp<ITarnService> proxy = new BpTarnService(new RelayBinder(service));
    LogCapture log;
    EXPECT_EQ(proxy->connect(321, client), 17);
    EXPECT_THAT(service->pids, ElementsAre(321));
    EXPECT_EQ(service->clients[0].get(), client.get());

    const auto lines = log.lines();
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0].message, "connect !");
    EXPECT_EQ(lines[0].priority, 6);
    EXPECT_EQ(lines[0].tag, "Zunt@ITarnService");
    EXPECT_EQ(lines[1].message, "CONNECT!");
    EXPECT_EQ(lines[1].priority, 4);
    EXPECT_EQ(lines[2].message, "connect pid:321, transact return 0!");
    EXPECT_EQ(lines[2].priority, 4);
}

TEST(BpTarnService, ReadsTheAnswerWhateverTheStatus) {
    const sp<RelayBinder> relay = new RelayBinder(new RecordingService);
    relay->die();
    const sp<ITarnService> proxy = new BpTarnService(relay);
    EXPECT_EQ(proxy->connect(1, nullptr), 0);
}

TEST(BpTarnService, CarriesAnInvokeUnchanged) {
    const sp<RecordingService> service = new RecordingService;
    const sp<ITarnService> proxy = new BpTarnService(new RelayBinder(service));
    Parcel data;
    withToken(&data, "android.ITarnService")->writeInt32(99);
    Parcel reply;
    LogCapture log;
    EXPECT_EQ(proxy->invoke(data, &reply), 3);
    EXPECT_THAT(service->payloads, ElementsAre(99));
    EXPECT_THAT(log.messages(), ElementsAre("invoke !", "INVOKE!"));
}

TEST(BnTarnService, RefusesParcelsWithoutItsToken) {
    const sp<RecordingService> service = new RecordingService;
    LogCapture log;
    for (const char* token : {"", "android.ITarnClient"}) {
        log.clear();
        Parcel data;
        Parcel reply;
        if (*token != '\0') withToken(&data, token);
        data.writeInt32(1);
        EXPECT_EQ(service->transact(ITarnService::CONNECT, data, &reply), -1);
        EXPECT_THAT(log.messages(), ElementsAre("CONNECT!"));
        data.setDataPosition(0);
        log.clear();
        EXPECT_EQ(service->transact(ITarnService::INVOKE, data, &reply), -1);
        EXPECT_THAT(log.messages(), IsEmpty());
    }
    EXPECT_THAT(service->pids, IsEmpty());
    EXPECT_THAT(service->payloads, IsEmpty());
}

TEST(BnTarnService, RefusesATruncatedConnect) {
    const sp<RecordingService> service = new RecordingService;
    Parcel reply;
    Parcel tokenOnly;
    withToken(&tokenOnly, "android.ITarnService");
    EXPECT_NE(service->transact(ITarnService::CONNECT, tokenOnly, &reply), android::OK);
    Parcel noBinder;
    withToken(&noBinder, "android.ITarnService")->writeInt32(1);
    EXPECT_NE(service->transact(ITarnService::CONNECT, noBinder, &reply), android::OK);
    EXPECT_THAT(service->pids, IsEmpty());
}

TEST(BnTarnService, LeavesOtherCodesToTheBinder) {
    const sp<RecordingService> service = new RecordingService;
    Parcel data;
    Parcel reply;
    EXPECT_EQ(service->transact(3, data, &reply), android::UNKNOWN_TRANSACTION);
    EXPECT_EQ(service->transact(IBinder::INTERFACE_TRANSACTION, data, &reply), android::OK);
}

TEST(BpTarnClient, SendsTypeAndBytesOneWay) {
    const sp<RecordingClient> client = new RecordingClient;
    const sp<ITarnClient> proxy = new BpTarnClient(new RelayBinder(client));
    char bytes[] = {'a', 'b', 'c', 'd'};
    proxy->notify(7, bytes, 4, bytes);
    ASSERT_EQ(client->received.size(), 1u);
    EXPECT_EQ(client->received[0].msgType, 7u);
    EXPECT_EQ(client->received[0].bytes, "abcd");
    EXPECT_EQ(client->received[0].ext, nullptr);
}

TEST(BpTarnClient, SendsTheTypeAloneWithoutBytes) {
    const sp<RecordingClient> client = new RecordingClient;
    const sp<ITarnClient> proxy = new BpTarnClient(new RelayBinder(client));
    char byte = 'a';
    proxy->notify(7, nullptr, 4, nullptr);
    proxy->notify(8, &byte, 0, nullptr);
    ASSERT_EQ(client->received.size(), 2u);
    EXPECT_EQ(client->received[0].bytes, "");
    EXPECT_EQ(client->received[1].bytes, "");
}

TEST(BpTarnClient, ShowsTheReceiverThePaddingToo) {
    const sp<RecordingClient> client = new RecordingClient;
    const sp<ITarnClient> proxy = new BpTarnClient(new RelayBinder(client));
    char bytes[] = {'a', 'b', 'c', 'd', 'e'};
    proxy->notify(7, bytes, 5, nullptr);
    EXPECT_EQ(client->received[0].bytes, std::string("abcde\0\0\0", 8));
}

TEST(BnTarnClient, RefusesWrongTokensAndTruncatedNotifications) {
    const sp<RecordingClient> client = new RecordingClient;
    Parcel reply;
    Parcel wrong;
    withToken(&wrong, "android.ITarnService")->writeInt32(1);
    EXPECT_EQ(client->transact(ITarnClient::NOTIFY, wrong, &reply), -1);
    Parcel truncated;
    withToken(&truncated, "android.ITarnClient");
    EXPECT_NE(client->transact(ITarnClient::NOTIFY, truncated, &reply), android::OK);
    EXPECT_THAT(client->received, IsEmpty());
    EXPECT_EQ(client->transact(9, truncated, &reply), android::UNKNOWN_TRANSACTION);
}

TEST(BnTarnClient, AnswersANotificationWithOk) {
    const sp<RecordingClient> client = new RecordingClient;
    Parcel data;
    withToken(&data, "android.ITarnClient")->writeInt32(1);
    Parcel reply;
    EXPECT_EQ(client->transact(ITarnClient::NOTIFY, data, &reply), android::OK);
    EXPECT_EQ(client->received.size(), 1u);
}

/** A client that stays in every notification until the gate opens. */
class HeldClient : public BnTarnClient {
  public:
    void notify(unsigned int, void* data, unsigned int, void*) override {
        const std::unique_ptr<uint8_t[]> owned(takeBuffer(data) ? static_cast<uint8_t*>(data)
                                                                : nullptr);
        gate.pass();
    }

    Gate gate;
};

TEST(BnTarnClient, ServesTheClientsOfAProcessOneTransactionAtATime) {
    const sp<HeldClient> held = new HeldClient;
    const sp<RecordingClient> other = new RecordingClient;
    BackgroundCall first([&] {
        sp<ITarnClient>(new BpTarnClient(new RelayBinder(held)))->notify(1, nullptr, 0, nullptr);
    });
    ASSERT_TRUE(eventually([&] { return held->gate.arrived(); }));
    BackgroundCall notification([&] {
        sp<ITarnClient>(new BpTarnClient(new RelayBinder(other)))->notify(2, nullptr, 0, nullptr);
    });
    BackgroundCall otherCode([&] {
        Parcel data;
        Parcel reply;
        EXPECT_EQ(other->transact(9, data, &reply), android::UNKNOWN_TRANSACTION);
    });
    EXPECT_TRUE(notification.waits());
    EXPECT_TRUE(otherCode.waits());
    held->gate.open();
    EXPECT_TRUE(eventually([&] { return notification.returned() && otherCode.returned(); }));
    EXPECT_EQ(other->received.size(), 1u);
}

class TarnServiceFanOut : public testing::Test {
  protected:
    sp<TarnService> service = new TarnService;
};

TEST_F(TarnServiceFanOut, KeepsAClientThatConnectsAgainOnce) {
    const sp<RecordingClient> client = new RecordingClient;
    const sp<RelayBinder> relay = new RelayBinder(client);
    LogCapture log;
    EXPECT_EQ(service->connect(5, ITarnClient::asInterface(relay)), -1);
    EXPECT_EQ(service->connect(5, ITarnClient::asInterface(relay)), -1);
    EXPECT_THAT(log.messages(),
                ElementsAre("entern connect, client pid = 5", "mClients.size = 1 ",
                            "entern connect, client pid = 5", "mClients.size = 1 "));
    EXPECT_EQ(log.lines()[0].tag, "Zunt@TarnService");
    EXPECT_EQ(log.lines()[0].priority, 3);

    EXPECT_EQ(service->notify(4, nullptr, 0, nullptr), 0);
    EXPECT_EQ(client->received.size(), 1u);
}

TEST_F(TarnServiceFanOut, ReachesEveryClient) {
    const sp<RecordingClient> clients[] = {new RecordingClient, new RecordingClient};
    service->connect(1, clients[0]);
    service->connect(2, new BpTarnClient(new RelayBinder(clients[1])));
    char bytes[] = {'a', 'b', 'c', 'd'};
    LogCapture log;
    EXPECT_EQ(service->notify(4, bytes, 4, nullptr), 0);
    EXPECT_EQ(clients[0]->received[0].bytes, "abcd");
    EXPECT_EQ(clients[1]->received[0].bytes, "abcd");
    ASSERT_EQ(log.lines().size(), 2u);
    EXPECT_THAT(log.messages()[0], testing::MatchesRegex("Notify<Client:0x[0-9a-f]+ Type:4>"));
}

TEST_F(TarnServiceFanOut, GoesOnPastADeadClient) {
    const sp<RelayBinder> dead = new RelayBinder(new RecordingClient);
    const sp<RecordingClient> alive = new RecordingClient;
    service->connect(1, ITarnClient::asInterface(dead));
    service->connect(2, alive);
    dead->die();
    EXPECT_EQ(service->notify(4, nullptr, 0, nullptr), 0);
    EXPECT_EQ(alive->received.size(), 1u);
}

TEST_F(TarnServiceFanOut, LetsAClientConnectMeanwhile) {
    const sp<HeldClient> held = new HeldClient;
    service->connect(1, held);
    BackgroundCall notify([&] { service->notify(4, nullptr, 0, nullptr); });
    ASSERT_TRUE(eventually([&] { return held->gate.arrived(); }));
    const sp<RecordingClient> late = new RecordingClient;
    BackgroundCall connect([&] { service->connect(2, late); });
    EXPECT_FALSE(connect.waits());
    EXPECT_FALSE(notify.returned());
    held->gate.open();
    EXPECT_TRUE(eventually([&] { return notify.returned() && connect.returned(); }));
    service->notify(5, nullptr, 0, nullptr);
    EXPECT_EQ(late->received.size(), 1u);
}

TEST_F(TarnServiceFanOut, RunsOneNotificationAtATime) {
    const sp<HeldClient> held = new HeldClient;
    service->connect(1, held);
    BackgroundCall first([&] { service->notify(4, nullptr, 0, nullptr); });
    ASSERT_TRUE(eventually([&] { return held->gate.arrived(); }));
    BackgroundCall second([&] { service->notify(5, nullptr, 0, nullptr); });
    EXPECT_TRUE(second.waits());
    EXPECT_EQ(held->gate.arrivals(), 1);
    held->gate.open();
    EXPECT_TRUE(eventually([&] { return held->gate.arrivals() == 2; }));
}

TEST_F(TarnServiceFanOut, SkipsANullClient) {
    service->connect(1, nullptr);
    EXPECT_EQ(service->notify(4, nullptr, 0, nullptr), 0);
}

TEST_F(TarnServiceFanOut, IsSilentWithoutClients) {
    LogCapture log;
    EXPECT_EQ(service->notify(4, nullptr, 0, nullptr), 0);
    EXPECT_THAT(log.messages(), IsEmpty());
}

TEST(TarnService, RefusesWhatItDoesNotDo) {
    const sp<TarnService> service = new TarnService;
    Parcel data;
    EXPECT_EQ(service->invoke(data, nullptr), -1);
    EXPECT_EQ(service->initTv(), -1);
    EXPECT_EQ(service->exitTv(), -1);
}

TEST(TarnService, SaysThatItIsDestroyed) {
    sp<TarnService> service = new TarnService;
    LogCapture log;
    service.clear();
    EXPECT_THAT(log.messages(), ElementsAre("TarnService destroyed"));
    EXPECT_EQ(log.lines()[0].priority, 3);
}

/** Keeps the one service that is published, and how that was done. */
class RecordingServiceManager : public android::IServiceManager {
  public:
    sp<IBinder> getService(const String16&) const override { return service; }
    sp<IBinder> checkService(const String16&) const override { return service; }
    sp<IBinder> waitForService(const String16&) override { return service; }
    bool isDeclared(const String16&) override { return false; }
    android::Vector<String16> listServices(int) override { return {}; }

    status_t addService(const String16& n, const sp<IBinder>& s, bool isolated,
                        int flags) override {
        name = n;
        service = s;
        allowIsolated = isolated;
        dumpFlags = flags;
        return android::OK;
    }

#ifdef __ANDROID__
    // What Android 13 asks for beyond the headers of a Linux host.
    using Callback = sp<LocalRegistrationCallback>;
    android::Vector<String16> getDeclaredInstances(const String16&) override {
        return {};
    }
    std::optional<String16> updatableViaApex(const String16&) override {
        return {};
    }
    std::optional<ConnectionInfo> getConnectionInfo(const String16&) override {
        return {};
    }
    status_t registerForNotifications(const String16&, const Callback&) override {
        return android::INVALID_OPERATION;
    }
    status_t unregisterForNotifications(const String16&, const Callback&) override {
        return android::INVALID_OPERATION;
    }
    std::vector<ServiceDebugInfo> getServiceDebugInfo() override {
        return {};
    }
#endif

    String16 name;
    sp<IBinder> service;
    bool allowIsolated = true;
    int dumpFlags = 0;

  protected:
    IBinder* onAsBinder() override {
        return nullptr;
    }
};

sp<RecordingServiceManager> installManager() {
    const sp<RecordingServiceManager> manager = new RecordingServiceManager;
    android::setDefaultServiceManager(manager);
    return manager;
}

// The process's service manager, there before anybody asks for it.
const sp<RecordingServiceManager> gManager = installManager();

class PublishedTarnService : public testing::Test {
  protected:
    PublishedTarnService() { TarnService::instantiate(); }

    ~PublishedTarnService() override { gManager->service.clear(); }

    LogCapture log;
};

TEST_F(PublishedTarnService, IsOpenToNoIsolatedProcessAndDumpedByDefault) {
    EXPECT_EQ(gManager->name, String16("tarn.service"));
    EXPECT_FALSE(gManager->allowIsolated);
    EXPECT_EQ(gManager->dumpFlags, 8);
}

TEST_F(PublishedTarnService, IsThePlatformSideUntilThatIsForgotten) {
    EXPECT_THAT(log.messages(), ElementsAre("TarnService instantiate"));
    EXPECT_EQ(sTarnPlatform, static_cast<TarnService*>(gManager->service.get()));
    TarnService::deinstantiate();
    EXPECT_THAT(log.messages().back(), "TarnService deinstantiate");
    EXPECT_EQ(sTarnPlatform, nullptr);
}

TEST_F(PublishedTarnService, StaysPublishedWithoutItsPlatformSide) {
    TarnService::deinstantiate();
    const sp<ITarnService> service = android::interface_cast<ITarnService>(gManager->service);
    ASSERT_NE(service, nullptr);
    EXPECT_EQ(service->connect(1, nullptr), -1);
}

TEST_F(PublishedTarnService, IsNoPlatformSideAnyMoreOnceItIsDestroyed) {
    gManager->service.clear();
    EXPECT_THAT(log.messages().back(), "TarnService destroyed");
    EXPECT_EQ(sTarnPlatform, nullptr);
}

TEST_F(PublishedTarnService, LeavesThePlatformSideOfAnotherAlone) {
    ITarnPlatform* const platform = sTarnPlatform;
    sp<TarnService>(new TarnService).clear();
    EXPECT_EQ(sTarnPlatform, platform);
}

}  // namespace
