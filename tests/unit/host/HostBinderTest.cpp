#include <binder/Binder.h>
#include <binder/BpBinder.h>
#include <binder/IInterface.h>
#include <binder/IPCThreadState.h>
#include <binder/IServiceManager.h>
#include <binder/ProcessState.h>
#include <gtest/gtest.h>
#include <unistd.h>
#include <utils/String8.h>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <future>
#include <map>
#include <mutex>
#include <thread>

#include "host/HostServiceManager.h"
#include "host/binder/carrier/Carrier.h"

namespace android {
namespace {

class IEcho : public IInterface {
  public:
    DECLARE_META_INTERFACE(Echo)
    virtual int32_t twice(int32_t value) = 0;

    enum { TWICE = IBinder::FIRST_CALL_TRANSACTION };
};

class BpEcho : public BpInterface<IEcho> {
  public:
    explicit BpEcho(const sp<IBinder>& remote) : BpInterface<IEcho>(remote) {}

    int32_t twice(int32_t value) override {
        Parcel data;
        Parcel reply;
        data.writeInterfaceToken(IEcho::getInterfaceDescriptor());
        data.writeInt32(value);
        const status_t status = remote()->transact(TWICE, data, &reply);
        return status == NO_ERROR ? reply.readInt32() : status;
    }
};

DO_NOT_DIRECTLY_USE_ME_IMPLEMENT_META_INTERFACE(Echo, "tarn.test.IEcho")

class Echo : public BnInterface<IEcho> {
  public:
    ~Echo() override { sDestroyed++; }

    int32_t twice(int32_t value) override { return 2 * value; }

    status_t onTransact(uint32_t code, const Parcel& data, Parcel* reply, uint32_t flags) override {
        lastFlags = flags;
        if (code != TWICE) return BBinder::onTransact(code, data, reply, flags);
        if (!data.checkInterface(this)) return PERMISSION_DENIED;
        callingPid = IPCThreadState::self()->getCallingPid();
        return reply->writeInt32(twice(data.readInt32()));
    }

    std::atomic<uint32_t> lastFlags{0};
    std::atomic<pid_t> callingPid{0};

    static std::atomic<int> sDestroyed;
};

std::atomic<int> Echo::sDestroyed{0};

class Recipient : public IBinder::DeathRecipient {
  public:
    void binderDied(const wp<IBinder>& binder) override {
        who = binder;
        deaths++;
    }

    wp<IBinder> who;
    int deaths = 0;
};

TEST(HostBinder, AnswersTheStandardTransactions) {
    const sp<IBinder> echo = new Echo;
    Parcel data;
    Parcel reply;
    EXPECT_EQ(NO_ERROR, echo->pingBinder());
    EXPECT_EQ(NO_ERROR, echo->transact(IBinder::PING_TRANSACTION, data, &reply));
    EXPECT_EQ(NO_ERROR, echo->transact(IBinder::INTERFACE_TRANSACTION, data, &reply));
    EXPECT_EQ(String16("tarn.test.IEcho"), reply.readString16());
    EXPECT_EQ(NO_ERROR, echo->transact(IBinder::INTERFACE_TRANSACTION, data, nullptr));
    EXPECT_EQ(UNKNOWN_TRANSACTION, echo->transact(77, data, &reply));
    pid_t pid = 0;
    EXPECT_EQ(OK, echo->getDebugPid(&pid));
    EXPECT_EQ(getpid(), pid);
}

TEST(HostBinder, RewindsRequestAndReply) {
    const sp<IBinder> echo = new Echo;
    Parcel data;
    data.writeInterfaceToken(IEcho::descriptor);
    data.writeInt32(21);
    Parcel reply;
    ASSERT_EQ(NO_ERROR, echo->transact(IEcho::TWICE, data, &reply, 0));
    EXPECT_EQ(0u, reply.dataPosition());
    EXPECT_EQ(42, reply.readInt32());
}

TEST(HostBinder, RefusesARequestWithoutTheToken) {
    const sp<IBinder> echo = new Echo;
    Parcel data;
    Parcel reply;
    EXPECT_EQ(PERMISSION_DENIED, echo->transact(IEcho::TWICE, data, &reply));
    EXPECT_EQ(0u, reply.dataSize());
}

TEST(HostBinder, HandsOutItsOwnInterfaceInTheSameProcess) {
    const sp<Echo> echo = new Echo;
    Parcel parcel;
    parcel.writeStrongBinder(IInterface::asBinder(echo));
    parcel.setDataPosition(0);
    const sp<IEcho> found = interface_cast<IEcho>(parcel.readStrongBinder());
    EXPECT_EQ(static_cast<IEcho*>(echo.get()), found.get());
    EXPECT_EQ(nullptr, interface_cast<IEcho>(sp<IBinder>()).get());
    EXPECT_EQ(nullptr, IInterface::asBinder(sp<IEcho>()).get());
}

TEST(HostBinder, CannotLinkToTheDeathOfALocalBinder) {
    const sp<IBinder> binder = new BBinder;
    const sp<Recipient> recipient = new Recipient;
    EXPECT_EQ(INVALID_OPERATION, binder->linkToDeath(recipient));
    EXPECT_EQ(INVALID_OPERATION, binder->unlinkToDeath(recipient));
    EXPECT_TRUE(binder->isBinderAlive());
}

TEST(HostBinder, CleansAttachedObjectsUpAtItsEnd) {
    static int cleaned = 0;
    int object = 0;
    const int key = 0;
    {
        const sp<IBinder> binder = new BBinder;
        EXPECT_EQ(nullptr, binder->findObject(&key));
        binder->attachObject(&key, &object, nullptr, [](const void*, void*, void*) { cleaned++; });
        EXPECT_EQ(&object, binder->findObject(&key));
        EXPECT_EQ(0, cleaned);
    }
    EXPECT_EQ(1, cleaned);
}

TEST(HostBinder, ForgetsADetachedObject) {
    const int key = 0;
    int object = 0;
    const sp<IBinder> binder = new BBinder;
    binder->attachObject(&key, &object, nullptr, nullptr);
    binder->detachObject(&key);
    EXPECT_EQ(nullptr, binder->findObject(&key));
}

TEST(HostBinder, KeepsItsExtension) {
    const sp<BBinder> binder = new BBinder;
    sp<IBinder> extension;
    EXPECT_EQ(OK, sp<IBinder>(binder)->getExtension(&extension));
    EXPECT_EQ(nullptr, extension.get());
    const sp<IBinder> added = new BBinder;
    binder->setExtension(added);
    Parcel data;
    Parcel reply;
    ASSERT_EQ(NO_ERROR, binder->transact(IBinder::EXTENSION_TRANSACTION, data, &reply));
    EXPECT_EQ(added, reply.readStrongBinder());
}

TEST(HostBinder, LivesAsLongAsAProxyHoldsIt) {
    const int before = Echo::sDestroyed;
    sp<BpEcho> proxy = new BpEcho(new Echo);
    EXPECT_EQ(before, Echo::sDestroyed);
    EXPECT_EQ(10, proxy->twice(5));
    const wp<BpEcho> weak = proxy;
    EXPECT_EQ(proxy, weak.promote());
    proxy.clear();
    EXPECT_EQ(before + 1, Echo::sDestroyed);
    EXPECT_EQ(nullptr, weak.promote().get());
}

TEST(HostBinder, CallsItselfUnderItsOwnIdentity) {
    const sp<Echo> echo = new Echo;
    const sp<IEcho> proxy = new BpEcho(IInterface::asBinder(echo));
    EXPECT_EQ(8, proxy->twice(4));
    EXPECT_EQ(getpid(), echo->callingPid.load());
    EXPECT_EQ(getuid(), IPCThreadState::self()->getCallingUid());
}

TEST(HostIPCThreadState, IsOneAThread) {
    IPCThreadState* const mine = IPCThreadState::self();
    EXPECT_EQ(mine, IPCThreadState::self());
    std::thread([mine] {
        EXPECT_EQ(nullptr, IPCThreadState::selfOrNull());
        EXPECT_NE(mine, IPCThreadState::self());
        EXPECT_NE(nullptr, IPCThreadState::selfOrNull());
    }).join();
}

TEST(HostIPCThreadState, RestoresAnIdentity) {
    IPCThreadState* const thread = IPCThreadState::self();
    thread->restoreCallingIdentity((int64_t{1234} << 32) | 567);
    EXPECT_EQ(1234u, thread->getCallingUid());
    EXPECT_EQ(567, thread->getCallingPid());
    const int64_t token = thread->clearCallingIdentity();
    EXPECT_EQ(getpid(), thread->getCallingPid());
    EXPECT_EQ(getuid(), thread->getCallingUid());
    EXPECT_EQ((int64_t{1234} << 32) | 567, token);
}

TEST(HostIPCThreadState, RestoresAWorkSource) {
    IPCThreadState* const thread = IPCThreadState::self();
    const int64_t outer = thread->setCallingWorkSourceUid(10);
    EXPECT_TRUE(thread->shouldPropagateWorkSource());
    const int64_t inner = thread->clearCallingWorkSource();
    EXPECT_EQ(static_cast<uid_t>(-1), thread->getCallingWorkSourceUid());
    thread->restoreCallingWorkSource(inner);
    EXPECT_EQ(10u, thread->getCallingWorkSourceUid());
    thread->restoreCallingWorkSource(outer);
    EXPECT_FALSE(thread->shouldPropagateWorkSource());
}

TEST(HostProcessState, IsOneAProcess) {
    EXPECT_EQ(ProcessState::self(), ProcessState::self());
    EXPECT_EQ(ProcessState::self(), ProcessState::selfOrNull());
    EXPECT_EQ(ProcessState::self(), IPCThreadState::self()->process());
}

TEST(HostProcessState, HasNoRemoteObjectsWithoutACarrier) {
    const sp<IBinder> proxy = ProcessState::self()->getStrongProxyForHandle(3);
    Parcel data;
    Parcel reply;
    EXPECT_EQ(DEAD_OBJECT, proxy->transact(1, data, &reply));
    EXPECT_FALSE(proxy->isBinderAlive());
    EXPECT_EQ(nullptr, ProcessState::self()->getStrongProxyForHandle(-1).get());
}

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

// Carries the transactions of a process back to itself, as if it were another one.
class LoopbackCarrier : public host::Carrier {
  public:
    static constexpr pid_t kCallingPid = 4321;

    int32_t add(const sp<BBinder>& target) {
        std::lock_guard<std::mutex> lock(mLock);
        mTargets[++mLastHandle] = target;
        return mLastHandle;
    }

    void kill(int32_t handle) {
        wp<BpBinder> watcher;
        {
            std::lock_guard<std::mutex> lock(mLock);
            mTargets.erase(handle);
            watcher = mWatchers[handle];
        }
        if (const sp<BpBinder> proxy = watcher.promote(); proxy != nullptr) proxy->sendObituary();
    }

    bool isWatched(int32_t handle) {
        std::lock_guard<std::mutex> lock(mLock);
        return mWatchers.count(handle) > 0;
    }

    int proxies(int32_t handle) {
        std::lock_guard<std::mutex> lock(mLock);
        return mProxies[handle];
    }

    status_t transact(int32_t handle, uint32_t code, uint32_t flags, host::Payload request,
                      host::Payload* reply) override {
        auto call = std::make_unique<Call>();
        std::future<Answer> answer = call->answered.get_future();
        {
            std::lock_guard<std::mutex> lock(mLock);
            const auto found = mTargets.find(handle);
            if (found == mTargets.end()) return DEAD_OBJECT;
            call->target = found->second;
            call->code = code;
            call->flags = flags;
            call->request = std::move(request);
            call->callingPid = kCallingPid;
            call->callingUid = getuid();
            mCalls.push_back(std::move(call));
            mArrived.notify_one();
        }
        if (reply == nullptr) return NO_ERROR;
        Answer result = answer.get();
        *reply = std::move(result.reply);
        return result.status;
    }

    std::optional<host::PoolWork> receive() override {
        std::unique_lock<std::mutex> lock(mLock);
        mArrived.wait(lock, [this] { return !mCalls.empty(); });
        std::unique_ptr<host::IncomingCall> call = std::move(mCalls.front());
        mCalls.pop_front();
        return host::PoolWork(std::move(call));
    }

    void acquire(int32_t handle) override {
        std::lock_guard<std::mutex> lock(mLock);
        mProxies[handle]++;
    }
    void release(int32_t handle) override {
        std::lock_guard<std::mutex> lock(mLock);
        mProxies[handle]--;
    }
    void watchDeath(int32_t handle, const wp<BpBinder>& proxy) override {
        std::lock_guard<std::mutex> lock(mLock);
        mWatchers[handle] = proxy;
    }
    void unwatchDeath(int32_t handle) override {
        std::lock_guard<std::mutex> lock(mLock);
        mWatchers.erase(handle);
    }

    status_t publish(const String16& name, const sp<IBinder>& service) override {
        mPublished[name] = service;
        return NO_ERROR;
    }
    void withdraw(const String16& name) override { mPublished.erase(name); }
    sp<IBinder> find(const String16& name) override {
        const auto found = mPublished.find(name);
        return found != mPublished.end() ? found->second : nullptr;
    }
    std::vector<String16> list() override {
        std::vector<String16> names;
        for (const auto& published : mPublished) names.push_back(published.first);
        return names;
    }

    std::map<String16, sp<IBinder>> mPublished;

  private:
    struct Answer {
        status_t status;
        host::Payload reply;
    };

    struct Call : public host::IncomingCall {
        void answer(status_t status, host::Payload reply) override {
            answered.set_value({status, std::move(reply)});
        }
        std::promise<Answer> answered;
    };

    std::mutex mLock;
    std::condition_variable mArrived;
    std::deque<std::unique_ptr<Call>> mCalls;
    std::map<int32_t, sp<BBinder>> mTargets;
    std::map<int32_t, wp<BpBinder>> mWatchers;
    std::map<int32_t, int> mProxies;
    int32_t mLastHandle = 0;
};

class HostCarrier : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        // Pool threads wait in it until the process ends.
        sCarrier = new LoopbackCarrier;
        host::setCarrier(sCarrier);
        ProcessState::self()->startThreadPool();
    }
    static void TearDownTestSuite() { host::setCarrier(nullptr); }

    static sp<IBinder> proxyOf(const sp<BBinder>& target) {
        return ProcessState::self()->getStrongProxyForHandle(sCarrier->add(target));
    }

    static LoopbackCarrier* sCarrier;
};

LoopbackCarrier* HostCarrier::sCarrier = nullptr;

TEST_F(HostCarrier, ReachesARemoteObject) {
    const sp<Echo> echo = new Echo;
    const sp<IEcho> proxy = interface_cast<IEcho>(proxyOf(echo));
    EXPECT_NE(static_cast<IEcho*>(echo.get()), proxy.get());
    EXPECT_EQ(14, proxy->twice(7));
    EXPECT_EQ(LoopbackCarrier::kCallingPid, echo->callingPid.load());
    EXPECT_EQ(getpid(), IPCThreadState::self()->getCallingPid());
}

TEST_F(HostCarrier, GivesTheSameProxyForTheSameObject) {
    const int32_t handle = sCarrier->add(new Echo);
    sp<IBinder> proxy = ProcessState::self()->getStrongProxyForHandle(handle);
    EXPECT_EQ(proxy, ProcessState::self()->getStrongProxyForHandle(handle));
    EXPECT_EQ(1, sCarrier->proxies(handle));
    // Found again while somebody knows it weakly.
    wp<IBinder> weak = proxy;
    proxy.clear();
    EXPECT_EQ(1, sCarrier->proxies(handle));
    proxy = ProcessState::self()->getStrongProxyForHandle(handle);
    EXPECT_EQ(weak.promote(), proxy);
    proxy.clear();
    weak.clear();
    EXPECT_EQ(0, sCarrier->proxies(handle));
}

TEST_F(HostCarrier, AsksForADescriptorOnce) {
    const sp<Echo> echo = new Echo;
    const int32_t handle = sCarrier->add(echo);
    const sp<IBinder> proxy = ProcessState::self()->getStrongProxyForHandle(handle);
    EXPECT_EQ(String16("tarn.test.IEcho"), proxy->getInterfaceDescriptor());
    sCarrier->kill(handle);
    EXPECT_EQ(String16("tarn.test.IEcho"), proxy->getInterfaceDescriptor());
}

TEST_F(HostCarrier, CarriesBindersBothWays) {
    class Mirror : public BBinder {
        status_t onTransact(uint32_t, const Parcel& data, Parcel* reply, uint32_t) override {
            reply->writeInt32(data.readInt32());
            return reply->writeStrongBinder(data.readStrongBinder());
        }
    };
    const sp<IBinder> proxy = proxyOf(new Mirror);
    const sp<IBinder> sent = new BBinder;
    Parcel data;
    data.writeInt32(6);
    data.writeStrongBinder(sent);
    Parcel reply;
    ASSERT_EQ(NO_ERROR, proxy->transact(1, data, &reply));
    EXPECT_EQ(6, reply.readInt32());
    EXPECT_EQ(sent, reply.readStrongBinder());
}

TEST_F(HostCarrier, ReportsTheTargetsStatus) {
    const sp<IBinder> proxy = proxyOf(new Echo);
    Parcel data;
    Parcel reply;
    EXPECT_EQ(UNKNOWN_TRANSACTION, proxy->transact(88, data, &reply));
    EXPECT_EQ(PERMISSION_DENIED, proxy->transact(IEcho::TWICE, data, &reply));
    EXPECT_EQ(NO_ERROR, proxy->pingBinder());
}

TEST_F(HostCarrier, DoesNotWaitForAOneWayCall) {
    class Gate : public BBinder {
      public:
        std::promise<void> open;
        std::promise<uint32_t> passed;

      private:
        status_t onTransact(uint32_t, const Parcel&, Parcel*, uint32_t flags) override {
            open.get_future().wait();
            passed.set_value(flags);
            return NO_ERROR;
        }
    };
    const sp<Gate> gate = new Gate;
    const sp<IBinder> proxy = proxyOf(gate);
    Parcel data;
    EXPECT_EQ(NO_ERROR, proxy->transact(1, data, nullptr, IBinder::FLAG_ONEWAY));
    gate->open.set_value();
    EXPECT_EQ(uint32_t{IBinder::FLAG_ONEWAY}, gate->passed.get_future().get());
}

TEST_F(HostCarrier, ServesSeveralCallsAtOnce) {
    // Opens only when all are in.
    class Meeting : public BBinder {
        status_t onTransact(uint32_t, const Parcel&, Parcel* reply, uint32_t) override {
            std::unique_lock<std::mutex> lock(mLock);
            mArrived++;
            mAll.notify_all();
            mAll.wait(lock, [this] { return mArrived == 5; });
            return reply->writeInt32(mArrived);
        }
        std::mutex mLock;
        std::condition_variable mAll;
        int mArrived = 0;
    };
    const sp<IBinder> proxy = proxyOf(new Meeting);
    std::vector<std::future<int32_t>> calls;
    for (int i = 0; i < 5; i++) {
        calls.push_back(std::async(std::launch::async, [&proxy] {
            Parcel data;
            Parcel reply;
            return proxy->transact(1, data, &reply) == NO_ERROR ? reply.readInt32() : -1;
        }));
    }
    for (auto& call : calls) EXPECT_EQ(5, call.get());
}

TEST_F(HostCarrier, ReportsADeathOnceToEachRecipient) {
    const int32_t handle = sCarrier->add(new Echo);
    const sp<IBinder> proxy = ProcessState::self()->getStrongProxyForHandle(handle);
    const sp<Recipient> first = new Recipient;
    const sp<Recipient> second = new Recipient;
    const sp<Recipient> unlinked = new Recipient;
    EXPECT_EQ(NO_ERROR, proxy->linkToDeath(first));
    EXPECT_EQ(NO_ERROR, proxy->linkToDeath(second));
    EXPECT_EQ(NO_ERROR, proxy->linkToDeath(unlinked));
    EXPECT_EQ(NO_ERROR, proxy->unlinkToDeath(unlinked));
    EXPECT_EQ(NAME_NOT_FOUND, proxy->unlinkToDeath(unlinked));
    sCarrier->kill(handle);
    proxy->remoteBinder()->sendObituary();
    EXPECT_EQ(1, first->deaths);
    EXPECT_EQ(1, second->deaths);
    EXPECT_EQ(0, unlinked->deaths);
    EXPECT_TRUE(first->who == proxy);
    EXPECT_FALSE(proxy->isBinderAlive());
    EXPECT_EQ(DEAD_OBJECT, proxy->pingBinder());
    EXPECT_EQ(DEAD_OBJECT, proxy->linkToDeath(first));
    EXPECT_EQ(DEAD_OBJECT, proxy->unlinkToDeath(first));
}

TEST_F(HostCarrier, UnlinksByCookie) {
    const int32_t handle = sCarrier->add(new Echo);
    const sp<IBinder> proxy = ProcessState::self()->getStrongProxyForHandle(handle);
    const sp<Recipient> recipient = new Recipient;
    int cookie = 0;
    proxy->linkToDeath(recipient, &cookie);
    EXPECT_TRUE(sCarrier->isWatched(handle));
    wp<IBinder::DeathRecipient> found;
    EXPECT_EQ(NAME_NOT_FOUND, proxy->unlinkToDeath(nullptr, &found));
    EXPECT_EQ(NO_ERROR, proxy->unlinkToDeath(nullptr, &cookie, 0, &found));
    EXPECT_TRUE(found == recipient);
    EXPECT_FALSE(sCarrier->isWatched(handle));
}

TEST_F(HostCarrier, TurnsDeadWhenACallFindsNobody) {
    const int32_t handle = sCarrier->add(new Echo);
    const sp<IBinder> proxy = ProcessState::self()->getStrongProxyForHandle(handle);
    EXPECT_TRUE(proxy->isBinderAlive());
    sCarrier->kill(handle);
    EXPECT_TRUE(proxy->isBinderAlive());
    EXPECT_EQ(DEAD_OBJECT, proxy->pingBinder());
    EXPECT_FALSE(proxy->isBinderAlive());
}

TEST_F(HostCarrier, SendsNoBinderBeyondTheSize) {
    const sp<IBinder> proxy = proxyOf(new Echo);
    Parcel binders;
    binders.writeStrongBinder(new BBinder);
    Parcel data;
    data.writeInt32(1);
    data.setDataPosition(60);
    ASSERT_EQ(NO_ERROR, data.appendFrom(&binders, 0, binders.dataSize()));
    Parcel reply;
    EXPECT_EQ(NO_ERROR, proxy->transact(IBinder::PING_TRANSACTION, data, &reply));
}

TEST_F(HostCarrier, RefusesObjectsThatDoNotFitIntoTheirBytes) {
    const sp<IBinder> binder = new BBinder;
    Parcel parcel;
    host::Payload payload;
    payload.bytes.resize(60);
    payload.objects = {{0, binder}, {28, binder}};
    EXPECT_EQ(NO_ERROR, host::assemble(payload, &parcel));
    EXPECT_EQ(60u, parcel.dataSize());
    payload.objects = {{0, binder}, {27, binder}};
    EXPECT_EQ(BAD_VALUE, host::assemble(payload, &parcel));
    payload.objects = {{33, binder}};
    EXPECT_EQ(BAD_VALUE, host::assemble(payload, &parcel));
    payload.objects = {{SIZE_MAX - 3, binder}};
    EXPECT_EQ(BAD_VALUE, host::assemble(payload, &parcel));
    payload.objects = {{0, nullptr}};
    EXPECT_EQ(BAD_VALUE, host::assemble(payload, &parcel));
}

TEST_F(HostCarrier, StaysConsistentWhileThreadsComeAndGo) {
    const sp<Echo> echo = new Echo;
    const int32_t handle = sCarrier->add(echo);
    const sp<Recipient> recipient = new Recipient;
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; t++) {
        threads.emplace_back([&, t] {
            for (int i = 0; i < 200; i++) {
                const sp<IBinder> binder = ProcessState::self()->getStrongProxyForHandle(handle);
                if (binder->linkToDeath(recipient) != NO_ERROR) wrong++;
                const int32_t value = 1000 * t + i;
                if (interface_cast<IEcho>(binder)->twice(value) != 2 * value) wrong++;
                if (binder->unlinkToDeath(recipient) != NO_ERROR) wrong++;
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(0, wrong);
    EXPECT_EQ(0, sCarrier->proxies(handle));
    EXPECT_FALSE(sCarrier->isWatched(handle));
}

TEST_F(HostCarrier, FindsServicesOfOtherProcesses) {
    const sp<IBinder> remote = proxyOf(new Echo);
    sCarrier->mPublished[String16("remote")] = remote;
    const sp<IServiceManager> manager = defaultServiceManager();
    EXPECT_EQ(remote, manager->getService(String16("remote")));
    manager->addService(String16("local"), new BBinder);
    EXPECT_EQ(1u, sCarrier->mPublished.count(String16("local")));
    EXPECT_EQ(2u, manager->listServices().size());
    host::removeAllServices();
    EXPECT_EQ(0u, sCarrier->mPublished.count(String16("local")));
}

}  // namespace
}  // namespace android
