#include <binder/Parcel.h>
#include <gtest/gtest.h>
#include <tarn/ITarnListener.h>
#include <unistd.h>

#include "core/HwTarnClient.h"
#include "tests/support/FakeHwTarn.h"
#include "tests/support/LogCapture.h"

using android::HwTarnClient;
using android::ITarnClientLooper;
using android::mHwTarnService;
using android::mITarnClientLooper;
using android::Parcel;
using android::sp;
using android::hardware::Status;
using namespace tarn::test;

namespace {

constexpr size_t kEventLimit = 1040384;

std::string bytesOf(const Parcel& parcel) {
    return std::string(reinterpret_cast<const char*>(parcel.data()), parcel.dataSize());
}

void expectOneError(const LogCapture& log, const char* function, const char* message) {
    const auto lines = log.lines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].tag, "Zunt@HwTarnClient");
    EXPECT_EQ(lines[0].priority, 6);
    EXPECT_EQ(lines[0].function, function);
    EXPECT_EQ(lines[0].message, message);
}

TEST(HwTarnClientInvoke, SendsTheRawBytesAndFillsTheReply) {
    PublishedFake service;
    service->onInvoke = [](const std::string&) { return std::string("\0\0\0\0a\0b\0", 8); };
    sp<HwTarnClient> client = new HwTarnClient;
    Parcel request;
    request.writeInt32(0);
    request.writeInt32(0x01000001);
    Parcel reply;
    EXPECT_EQ(client->hw_invoke(request, &reply), 0);
    EXPECT_EQ(service->requests()[0], std::string("\0\0\0\0\x01\0\0\x01", 8));
    EXPECT_EQ(bytesOf(reply), std::string("\0\0\0\0a\0b\0", 8));
}

TEST(HwTarnClientInvoke, ReplacesALongerReply) {
    PublishedFake service;
    service->onInvoke = [](const std::string&) { return std::string("\x01\0\0\0", 4); };
    sp<HwTarnClient> client = new HwTarnClient;
    Parcel request;
    request.writeInt32(1);
    Parcel reply;
    for (int i = 0; i < 8; i++) reply.writeInt32(99);
    EXPECT_EQ(client->hw_invoke(request, &reply), 0);
    EXPECT_EQ(bytesOf(reply), std::string("\x01\0\0\0", 4));
}

TEST(HwTarnClientInvoke, SendsNothingForAnEmptyRequest) {
    PublishedFake service;
    sp<HwTarnClient> client = new HwTarnClient;
    Parcel request;
    Parcel reply;
    reply.writeInt32(5);
    EXPECT_EQ(client->hw_invoke(request, &reply), 0);
    EXPECT_TRUE(service->requests().empty());
    EXPECT_EQ(reply.dataSize(), 4u);
}

TEST(HwTarnClientInvoke, FailsWithoutAService) {
    sp<HwTarnClient> client = new HwTarnClient;
    Parcel request;
    request.writeInt32(1);
    Parcel reply;
    LogCapture log;
    EXPECT_EQ(client->hw_invoke(request, &reply), -1);
    expectOneError(log, "hw_invoke", "Error, hw_invoke failed, mHwTarnService null .");
}

TEST(HwTarnClientInvoke, FindsAServiceThatCameLater) {
    sp<HwTarnClient> client = new HwTarnClient;
    EXPECT_EQ(client->isTarnReady(), -1);
    PublishedFake service;
    Parcel request;
    request.writeInt32(1);
    Parcel reply;
    EXPECT_EQ(client->hw_invoke(request, &reply), 0);
    EXPECT_EQ(client->isTarnReady(), 0);
}

TEST(HwTarnClientInvoke, FailsEveryTimeOnceTheServiceIsDead) {
    PublishedFake service;
    sp<HwTarnClient> client = new HwTarnClient;
    service->failWith(Status::fromStatusT(android::DEAD_OBJECT));
    Parcel request;
    request.writeInt32(1);
    Parcel reply;
    for (int i = 0; i < 2; i++) {
        LogCapture log;
        EXPECT_EQ(client->hw_invoke(request, &reply), -1);
        expectOneError(log, "hw_invoke", "Error, hwInvoke failed, service is a DEAD_OBJECT.");
    }
    EXPECT_NE(mHwTarnService, nullptr);
}

TEST(HwTarnClientInvoke, TakesAnyOtherTransportErrorForAnEmptyReply) {
    PublishedFake service;
    sp<HwTarnClient> client = new HwTarnClient;
    service->failWith(Status::fromStatusT(android::FAILED_TRANSACTION));
    Parcel request;
    request.writeInt32(1);
    Parcel reply;
    reply.writeInt32(5);
    LogCapture log;
    EXPECT_EQ(client->hw_invoke(request, &reply), 0);
    EXPECT_EQ(reply.dataSize(), 0u);
    EXPECT_TRUE(log.lines().empty());
}

TEST(HwTarnClientPostEvent, SendsUpToTheLimit) {
    PublishedFake service;
    sp<HwTarnClient> client = new HwTarnClient;
    Parcel data;
    data.setDataSize(kEventLimit);
    EXPECT_EQ(client->postEvent(9, data), 0);
    ASSERT_EQ(service->events().size(), 1u);
    EXPECT_EQ(service->events()[0].what, 9);
    EXPECT_EQ(service->events()[0].data.size(), kEventLimit);
}

TEST(HwTarnClientPostEvent, RefusesOneByteMore) {
    PublishedFake service;
    sp<HwTarnClient> client = new HwTarnClient;
    Parcel data;
    data.setDataSize(kEventLimit + 1);
    LogCapture log;
    EXPECT_EQ(client->postEvent(9, data), -1);
    EXPECT_TRUE(service->events().empty());
    expectOneError(
            log, "postEvent",
            "Error, postEvent failed, Parcel data szie to long , biger then BINDER_VM_SIZE .");
}

TEST(HwTarnClientPostEvent, SendsAnEmptyParcelToo) {
    PublishedFake service;
    sp<HwTarnClient> client = new HwTarnClient;
    EXPECT_EQ(client->postEvent(9, Parcel()), 0);
    EXPECT_EQ(service->events().size(), 1u);
}

TEST(HwTarnClientPostEvent, FailsWithoutAService) {
    sp<HwTarnClient> client = new HwTarnClient;
    LogCapture log;
    EXPECT_EQ(client->postEvent(9, Parcel()), -1);
    expectOneError(log, "postEvent", "Error, postEvent failed, mHwTarnService null .");
}

TEST(HwTarnClientPostEvent, FailsWhenTheServiceIsDeadOnly) {
    PublishedFake service;
    sp<HwTarnClient> client = new HwTarnClient;
    service->failWith(Status::fromStatusT(android::FAILED_TRANSACTION));
    EXPECT_EQ(client->postEvent(9, Parcel()), 0);
    service->failWith(Status::fromStatusT(android::DEAD_OBJECT));
    LogCapture log;
    EXPECT_EQ(client->postEvent(9, Parcel()), -1);
    expectOneError(log, "postEvent", "Error, postEvent failed, service is a DEAD_OBJECT.");
}

TEST(HwTarnClient, RegistersItsCallbackUnderTheProcessId) {
    PublishedFake service;
    sp<HwTarnClient> client = new HwTarnClient;
    EXPECT_EQ(client->createTarnMsgManager(), 0);
    EXPECT_TRUE(service->hasCallback());
    EXPECT_EQ(service->callbackPid(), getpid());
}

TEST(HwTarnClient, CannotStartEventsWithoutAServiceAndSaysNothing) {
    sp<HwTarnClient> client = new HwTarnClient;
    LogCapture log;
    EXPECT_EQ(client->createTarnMsgManager(), -1);
    EXPECT_TRUE(log.lines().empty());
}

TEST(HwTarnClient, CannotStartEventsWhenTheServiceIsDead) {
    PublishedFake service;
    sp<HwTarnClient> client = new HwTarnClient;
    service->failWith(Status::fromStatusT(android::DEAD_OBJECT));
    LogCapture log;
    EXPECT_EQ(client->createTarnMsgManager(), -1);
    expectOneError(log, "createTarnMsgManager",
                   "Error, createTarnMsgManager failed, service is a DEAD_OBJECT.");
}

TEST(HwTarnClient, StartsEventsDespiteAnyOtherTransportError) {
    PublishedFake service;
    sp<HwTarnClient> client = new HwTarnClient;
    service->failWith(Status::fromStatusT(android::FAILED_TRANSACTION));
    EXPECT_EQ(client->createTarnMsgManager(), 0);
}

TEST(HwTarnClient, EmptiesTheSharedProxyAndLooperWhenItGoes) {
    PublishedFake service;
    sp<HwTarnClient> client = new HwTarnClient;
    EXPECT_NE(mHwTarnService, nullptr);
    EXPECT_NE(mITarnClientLooper, nullptr);
    client.clear();
    EXPECT_EQ(mHwTarnService, nullptr);
    EXPECT_EQ(mITarnClientLooper, nullptr);
}

TEST(HwTarnClient, LooksProxyAndLooperUpAgainAfterAnotherClientWent) {
    PublishedFake old;
    sp<HwTarnClient> first = new HwTarnClient;
    const sp<ITarnClientLooper> oldLooper = mITarnClientLooper;
    PublishedFake service;
    first.clear();

    const sp<HwTarnClient> second = new HwTarnClient;
    EXPECT_NE(mHwTarnService, nullptr);
    EXPECT_NE(mITarnClientLooper, nullptr);
    EXPECT_NE(sp<ITarnClientLooper>(mITarnClientLooper), oldLooper);
    Parcel request;
    request.writeInt32(1);
    Parcel reply;
    EXPECT_EQ(second->hw_invoke(request, &reply), 0);
    EXPECT_EQ(old->requests().size(), 0u);
    EXPECT_EQ(service->requests().size(), 1u);
}

TEST(HwTarnClient, SharesProxyAndLooperWithAnotherClient) {
    PublishedFake service;
    const sp<HwTarnClient> first = new HwTarnClient;
    const sp<ITarnClientLooper> looper = mITarnClientLooper;
    const sp<HwTarnClient> second = new HwTarnClient;
    EXPECT_EQ(sp<ITarnClientLooper>(mITarnClientLooper), looper);
}

TEST(HwTarnClient, LeavesItsLooperThoughAnotherClientEmptiedTheReference) {
    PublishedFake service;
    sp<HwTarnClient> client = new HwTarnClient;
    client->createTarnMsgManager();
    const sp<ITarnClientLooper> looper = mITarnClientLooper;
    EXPECT_TRUE(looper->sendMsg(1, nullptr, 0));
    sp<HwTarnClient>(new HwTarnClient).clear();
    ASSERT_EQ(mITarnClientLooper, nullptr);
    EXPECT_TRUE(looper->sendMsg(1, nullptr, 0));
    client.clear();
    EXPECT_FALSE(looper->sendMsg(1, nullptr, 0));
}

TEST(HwTarnClient, LeavesEveryLooperThatItEverJoined) {
    PublishedFake service;
    sp<HwTarnClient> client = new HwTarnClient;
    sp<ITarnClientLooper> loopers[2];
    for (sp<ITarnClientLooper>& looper : loopers) {
        client->createTarnMsgManager();
        looper = mITarnClientLooper;
        sp<HwTarnClient>(new HwTarnClient).clear();
    }
    client.clear();
    for (const sp<ITarnClientLooper>& looper : loopers) {
        EXPECT_FALSE(looper->sendMsg(1, nullptr, 0));
    }
}

TEST(HwTarnClient, LeavesTheProcessesLooperWhenEventsStop) {
    PublishedFake service;
    const sp<HwTarnClient> client = new HwTarnClient;
    client->createTarnMsgManager();
    const sp<ITarnClientLooper> looper = mITarnClientLooper;
    EXPECT_EQ(client->removeTarnMsgManager(), 0);
    EXPECT_FALSE(looper->sendMsg(1, nullptr, 0));
    EXPECT_EQ(mITarnClientLooper, nullptr);
}

TEST(HwTarnClient, HandlesAnEventWithFalseWhetherSomebodyListensOrNot) {
    class Silent : public ITarnListener {
        void notify(unsigned int, int, int, const Parcel*) override {}
    };
    const sp<HwTarnClient> client = new HwTarnClient;
    EXPECT_FALSE(client->handleMsg(7, nullptr, 0));
    Silent listener;
    client->registerListener(&listener);
    EXPECT_FALSE(client->handleMsg(7, nullptr, 0));
    client->unRegisterListener(&listener);
}

TEST(GetHwTarnService, LooksTheServiceUpAfreshEveryTime) {
    EXPECT_EQ(android::getHwTarnService(), nullptr);
    {
        PublishedFake service;
        EXPECT_NE(android::getHwTarnService(), nullptr);
    }
    EXPECT_EQ(android::getHwTarnService(), nullptr);
}

}  // namespace
