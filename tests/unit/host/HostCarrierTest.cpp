#include <binder/Binder.h>
#include <binder/BpBinder.h>
#include <binder/IServiceManager.h>
#include <binder/ProcessState.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <future>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

#include "host/HostServiceManager.h"
#include "host/binder/carrier/Carrier.h"
#include "tests/unit/host/HostEcho.h"

namespace android {
namespace {

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

    std::optional<host::PoolWork> receive(host::Domain /*domain*/) override {
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

// The thread sanitizer sees what they do to each other.
TEST_F(HostCarrier, AnyThreadMayAskForADescriptor) {
    for (int round = 0; round < 50; round++) {
        const sp<IBinder> proxy = proxyOf(new Echo);
        std::vector<std::future<bool>> known;
        for (int i = 0; i < 4; i++) {
            known.push_back(std::async(std::launch::async, [proxy] {
                return proxy->getInterfaceDescriptor() == String16("tarn.test.IEcho");
            }));
        }
        for (auto& each : known) EXPECT_TRUE(each.get());
    }
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
