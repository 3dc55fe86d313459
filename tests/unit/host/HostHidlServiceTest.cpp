#include <binder/Binder.h>
#include <binder/IServiceManager.h>
#include <gtest/gtest.h>
#include <hidl/HidlBinderSupport.h>
#include <hidl/HidlSupport.h>
#include <vendor/zunt/hwtarn/1.0/BnHwHwTarn.h>
#include <vendor/zunt/hwtarn/1.0/BnHwHwTarnCallback.h>
#include <vendor/zunt/hwtarn/1.0/BpHwHwTarn.h>
#include <vendor/zunt/hwtarn/1.0/BpHwHwTarnCallback.h>

#include <string>
#include <thread>
#include <vector>

#include "tests/unit/host/HidlFakes.h"

using namespace std::string_literals;

namespace tarn::test {

using ::android::String16;
using ::android::hardware::fromBinder;
using ::vendor::zunt::hwtarn::V1_0::BnHwHwTarn;
using ::vendor::zunt::hwtarn::V1_0::BnHwHwTarnCallback;
using ::vendor::zunt::hwtarn::V1_0::BpHwHwTarn;
using ::vendor::zunt::hwtarn::V1_0::BpHwHwTarnCallback;

namespace {

TEST(HwTarnService, IsTheVeryObjectThatThisProcessRegistered) {
    const sp<RecordingService> service = new RecordingService;
    ASSERT_EQ(service->registerAsService("identity"), OK);
    EXPECT_EQ(IHwTarn::getService("identity", false), service);
    EXPECT_EQ(IHwTarn::getService("identity"s), service);
    EXPECT_EQ(IHwTarn::getService(hidl_string("identity")), service);
    EXPECT_EQ(IHwTarn::tryGetService("identity"), service);
    EXPECT_FALSE(IHwTarn::getService("identity")->isRemote());
}

TEST(HwTarnService, IsCalledDefaultUnlessNamed) {
    const sp<RecordingService> service = new RecordingService;
    ASSERT_EQ(service->registerAsService(), OK);
    EXPECT_EQ(IHwTarn::getService(), service);
    EXPECT_EQ(IHwTarn::getService(false), service);
    EXPECT_EQ(IHwTarn::getService("default", false), service);
    EXPECT_EQ(::android::defaultServiceManager()->checkService(
                      String16("vendor.zunt.hwtarn@1.0::IHwTarn/default")),
              stubOf(service));
}

TEST(HwTarnService, IsNullAtOnceWhereThereIsNone) {
    EXPECT_EQ(IHwTarn::getService("absent", false), nullptr);
    EXPECT_EQ(IHwTarn::tryGetService("absent", false), nullptr);
    EXPECT_EQ(IHwTarn::getService(static_cast<const char*>(nullptr)), nullptr);
}

TEST(HwTarnService, IsNeverLoadedIntoTheProcess) {
    const sp<RecordingService> service = new RecordingService;
    ASSERT_EQ(service->registerAsService("stub"), OK);
    EXPECT_EQ(IHwTarn::getService("stub", true), nullptr);
    EXPECT_EQ(IHwTarn::getService(true), nullptr);
}

TEST(HwTarnService, IsAProxyWhereAnotherProcessRegisteredIt) {
    const sp<IBinder> remote = scripted([](const Parcel&, Parcel*) { return DEAD_OBJECT; });
    ASSERT_EQ(::android::defaultServiceManager()->addService(
                      String16("vendor.zunt.hwtarn@1.0::IHwTarn/remote"), remote),
              OK);
    const sp<IHwTarn> service = IHwTarn::getService("remote");
    ASSERT_NE(service, nullptr);
    EXPECT_TRUE(service->isRemote());
    EXPECT_TRUE(service->hwPostEvent(1, "").isDeadObject());
}

TEST(HwTarnService, CanBeReplaced) {
    const sp<RecordingService> first = new RecordingService;
    const sp<RecordingService> second = new RecordingService;
    ASSERT_EQ(first->registerAsService("replaced"), OK);
    ASSERT_EQ(second->registerAsService("replaced"), OK);
    EXPECT_EQ(IHwTarn::getService("replaced"), second);
}

TEST(HwTarnService, IsNullWhereSomethingElseHasItsName) {
    const sp<IBinder> foreign = new BBinder;
    ASSERT_EQ(::android::defaultServiceManager()->addService(
                      String16("vendor.zunt.hwtarn@1.0::IHwTarn/foreign"), foreign),
              OK);
    EXPECT_EQ(IHwTarn::getService("foreign"), nullptr);
    ASSERT_EQ(::android::defaultServiceManager()->addService(
                      String16("vendor.zunt.hwtarn@1.0::IHwTarn/callback"),
                      stubOf(sp<RecordingCallback>(new RecordingCallback))),
              OK);
    EXPECT_EQ(IHwTarn::getService("callback"), nullptr);
}

TEST(HidlStub, IsTheSameOneForAnObjectWhileItLives) {
    const sp<RecordingService> service = new RecordingService;
    const sp<IBinder> stub = stubOf(service);
    EXPECT_EQ(stubOf(service), stub);
    EXPECT_NE(stubOf(sp<RecordingService>(new RecordingService)), stub);
    EXPECT_EQ((fromBinder<IHwTarn, BpHwHwTarn, BnHwHwTarn>(stub)), service);
    EXPECT_EQ((fromBinder<IHwTarnCallback, BpHwHwTarnCallback, BnHwHwTarnCallback>(stub)), nullptr);
}

TEST(HidlStub, KeepsItsObjectAliveAndReleasesItWithItself) {
    sp<RecordingService> service = new RecordingService;
    const wp<RecordingService> observed = service;
    sp<IBinder> stub = stubOf(service);
    service.clear();
    ASSERT_NE(observed.promote(), nullptr);
    EXPECT_EQ(invoke(sp<IHwTarn>(new BpHwHwTarn(stub)), "ab"), "ba");
    stub.clear();
    EXPECT_EQ(observed.promote(), nullptr);
}

TEST(HidlStub, IsMadeAnewAfterTheFormerOneIsGone) {
    const sp<RecordingService> service = new RecordingService;
    for (int i = 0; i < 3; i++) EXPECT_EQ(invoke(proxyTo(service), "ab"), "ba");
    EXPECT_EQ(service->getStrongCount(), 1);
}

TEST(HidlStub, IsOneForManyThreads) {
    const sp<RecordingCallback> callback = new RecordingCallback;
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; i++) {
        threads.emplace_back([&callback] {
            for (int n = 0; n < 2000; n++) {
                const sp<IBinder> stub = stubOf(callback);
                ASSERT_EQ(stubOf(callback), stub);
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(callback->getStrongCount(), 1);
}

TEST(HwTarnDeath, TellsALinkedRecipientWithItsCookie) {
    const sp<ScriptedBinder> binder = scripted([](const Parcel&, Parcel*) { return OK; });
    const sp<IHwTarn> proxy = sp<IHwTarn>(new BpHwHwTarn(binder));
    const sp<RecordingDeathRecipient> recipient = new RecordingDeathRecipient;
    EXPECT_TRUE(proxy->linkToDeath(recipient, 7));
    EXPECT_TRUE(proxy->linkToDeath(recipient, 8));
    binder->die();
    EXPECT_EQ(recipient->cookies, (std::vector<uint64_t>{7, 8}));
    EXPECT_TRUE(recipient->lastWho == sp<IBase>(proxy));
    EXPECT_FALSE(proxy->linkToDeath(recipient, 9));
}

TEST(HwTarnDeath, TellsNobodyWhoWasUnlinked) {
    const sp<ScriptedBinder> binder = scripted([](const Parcel&, Parcel*) { return OK; });
    const sp<IHwTarn> proxy = sp<IHwTarn>(new BpHwHwTarn(binder));
    const sp<RecordingDeathRecipient> recipient = new RecordingDeathRecipient;
    const sp<RecordingDeathRecipient> other = new RecordingDeathRecipient;
    EXPECT_TRUE(proxy->linkToDeath(recipient, 1));
    EXPECT_TRUE(proxy->linkToDeath(recipient, 2));
    EXPECT_FALSE(proxy->unlinkToDeath(other));
    EXPECT_FALSE(proxy->unlinkToDeath(nullptr));
    EXPECT_FALSE(proxy->linkToDeath(nullptr, 3));
    EXPECT_TRUE(proxy->unlinkToDeath(recipient));
    binder->die();
    EXPECT_EQ(recipient->cookies, std::vector<uint64_t>{1});
}

TEST(HwTarnDeath, HoldsNeitherTheProxyNorTheRecipient) {
    const sp<ScriptedBinder> binder = scripted([](const Parcel&, Parcel*) { return OK; });
    sp<RecordingDeathRecipient> recipient = new RecordingDeathRecipient;
    const wp<RecordingDeathRecipient> observed = recipient;
    sp<IHwTarn> proxy = sp<IHwTarn>(new BpHwHwTarn(binder));
    EXPECT_TRUE(proxy->linkToDeath(recipient, 1));
    recipient.clear();
    EXPECT_EQ(observed.promote(), nullptr);
    recipient = new RecordingDeathRecipient;
    EXPECT_TRUE(proxy->linkToDeath(recipient, 2));
    proxy.clear();
    binder->die();
    EXPECT_TRUE(recipient->cookies.empty());
}

TEST(HwTarnDeath, CannotComeToALocalObject) {
    const sp<RecordingService> service = new RecordingService;
    const sp<RecordingDeathRecipient> recipient = new RecordingDeathRecipient;
    EXPECT_TRUE(service->linkToDeath(recipient, 1));
    EXPECT_TRUE(service->unlinkToDeath(recipient));
    EXPECT_FALSE(service->linkToDeath(nullptr, 1));
}

}  // namespace
}  // namespace tarn::test
