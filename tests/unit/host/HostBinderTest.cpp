#include <binder/Binder.h>
#include <binder/BpBinder.h>
#include <binder/IInterface.h>
#include <binder/IPCThreadState.h>
#include <binder/ProcessState.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <thread>

#include "tests/unit/host/HostEcho.h"

namespace android {
namespace {

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

}  // namespace
}  // namespace android
