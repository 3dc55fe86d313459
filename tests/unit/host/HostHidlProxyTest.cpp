#include <binder/Parcel.h>
#include <gtest/gtest.h>
#include <hidl/HidlBinderSupport.h>
#include <hidl/HidlSupport.h>
#include <hidl/Status.h>
#include <unistd.h>
#include <vendor/zunt/hwtarn/1.0/BnHwHwTarn.h>
#include <vendor/zunt/hwtarn/1.0/BpHwHwTarn.h>
#include <vendor/zunt/hwtarn/1.0/BpHwHwTarnCallback.h>

#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

#include "tests/unit/host/HidlFakes.h"

using namespace std::string_literals;

namespace tarn::test {

using ::android::String16;
using ::android::hardware::Status;
using ::android::hardware::toBinder;
using ::vendor::zunt::hwtarn::V1_0::BnHwHwTarn;
using ::vendor::zunt::hwtarn::V1_0::BpHwHwTarn;
using ::vendor::zunt::hwtarn::V1_0::BpHwHwTarnCallback;

namespace {

TEST(HwTarnProxy, IsRemoteAndTravelsAsItsOwnBinder) {
    const sp<IBinder> binder = scripted([](const Parcel&, Parcel*) { return OK; });
    const sp<IHwTarn> proxy = sp<IHwTarn>(new BpHwHwTarn(binder));
    EXPECT_TRUE(proxy->isRemote());
    EXPECT_EQ((toBinder<IHwTarn, BnHwHwTarn>(proxy)), binder);
    EXPECT_EQ((toBinder<IHwTarn, BnHwHwTarn>(nullptr)), nullptr);
}

TEST(HwTarnProxy, CarriesBinaryStringsBothWays) {
    const sp<RecordingService> service = new RecordingService;
    const sp<IHwTarn> proxy = proxyTo(service);
    EXPECT_EQ(invoke(proxy, "\0a\0\0b"s), "b\0\0a\0"s);
    EXPECT_EQ(service->lastRequest, "\0a\0\0b"s);
    EXPECT_EQ(invoke(proxy, ""), "");
    for (const size_t size : {1, 2, 3, 4, 5, 255, 256}) {
        const std::string request = everyByte(size);
        EXPECT_EQ(invoke(proxy, request), std::string(request.rbegin(), request.rend()));
    }
}

TEST(HwTarnProxy, CarriesMoreThanAMebibyteBothWays) {
    const sp<RecordingService> service = new RecordingService;
    const std::string request = everyByte((1 << 20) + 13);
    EXPECT_EQ(invoke(proxyTo(service), request), std::string(request.rbegin(), request.rend()));
    EXPECT_EQ(service->lastRequest, request);
}

TEST(HwTarnProxy, PostsEvents) {
    const sp<RecordingService> service = new RecordingService;
    const sp<IHwTarn> proxy = proxyTo(service);
    EXPECT_TRUE(proxy->hwPostEvent(-5, "x\0y"s).isOk());
    EXPECT_EQ(service->postedWhat, -5);
    EXPECT_EQ(service->postedData, "x\0y"s);
    EXPECT_TRUE(proxy->hwPostEvent(6, hidl_string()).isOk());
    EXPECT_EQ(service->postedData, "");
}

TEST(HwTarnProxy, RegistersACallback) {
    const sp<RecordingService> service = new RecordingService;
    const sp<RecordingCallback> callback = new RecordingCallback;
    EXPECT_TRUE(proxyTo(service)->hwRegisterCallback(callback, 4711).isOk());
    EXPECT_EQ(service->registered, callback);
    EXPECT_EQ(service->registeredPid, 4711);
}

TEST(HwTarnProxy, RegistersAnotherProcessesCallback) {
    const sp<RecordingService> service = new RecordingService;
    int events = 0;
    const sp<IBinder> remote = scripted([&events](const Parcel&, Parcel* reply) {
        events++;
        return reply->writeInt32(0);
    });
    EXPECT_TRUE(proxyTo(service)->hwRegisterCallback(new BpHwHwTarnCallback(remote), 1).isOk());
    ASSERT_NE(service->registered, nullptr);
    EXPECT_TRUE(service->registered->isRemote());
    EXPECT_TRUE(service->registered->hwNotify(1, 2, "three").isOk());
    EXPECT_EQ(events, 1);
}

TEST(HwTarnProxy, HandsOnANullCallback) {
    const sp<RecordingService> service = new RecordingService;
    service->registered = new RecordingCallback;
    EXPECT_TRUE(proxyTo(service)->hwRegisterCallback(nullptr, 1).isOk());
    EXPECT_EQ(service->registered, nullptr);
    EXPECT_EQ(service->calls, 1);
}

TEST(HwTarnProxy, RefusesANullReplyCallback) {
    const sp<RecordingService> service = new RecordingService;
    EXPECT_FALSE(proxyTo(service)->hwInvoke("request", nullptr).isOk());
    EXPECT_EQ(service->calls, 0);
}

TEST(HwTarnProxy, ReportsADeadObject) {
    const sp<IHwTarn> proxy = proxyToScripted([](const Parcel&, Parcel*) { return DEAD_OBJECT; });
    bool answered = false;
    const Return<void> result =
            proxy->hwInvoke("request", [&answered](const hidl_string&) { answered = true; });
    EXPECT_FALSE(result.isOk());
    EXPECT_TRUE(result.isDeadObject());
    EXPECT_FALSE(answered);
    EXPECT_TRUE(proxy->hwPostEvent(1, "").isDeadObject());
    EXPECT_TRUE(proxy->hwRegisterCallback(nullptr, 1).isDeadObject());
    EXPECT_TRUE(proxy->ping().isDeadObject());
}

TEST(HwTarnProxy, TakesAMalformedAnswerForAnErrorNotADeath) {
    const std::vector<Fill> answers = {
            nothing,
            [](Parcel* reply) { reply->writeInt32(0); },
            [](Parcel* reply) {
                reply->writeInt32(0);
                reply->writeInt32(-1);
            },
            [](Parcel* reply) {
                reply->writeInt32(0);
                reply->writeInt32(0x7fffffff);
            },
            [](Parcel* reply) {
                reply->writeInt32(0);
                reply->writeInt32(4);
                reply->write("abcd", 4);
            },
            [](Parcel* reply) {
                reply->writeInt32(0);
                reply->writeInt32(3);
                reply->write("abcd", 4);
            },
            [](Parcel* reply) { reply->writeInt32(Status::EX_ILLEGAL_STATE); },
            [](Parcel* reply) { reply->writeInt32(12345); },
    };
    for (size_t i = 0; i < answers.size(); i++) {
        SCOPED_TRACE(i);
        const sp<IHwTarn> proxy =
                proxyToScripted([fill = answers[i]](const Parcel&, Parcel* reply) {
                    fill(reply);
                    return OK;
                });
        bool answered = false;
        const Return<void> result =
                proxy->hwInvoke("request", [&answered](const hidl_string&) { answered = true; });
        EXPECT_FALSE(result.isOk());
        EXPECT_FALSE(result.isDeadObject());
        EXPECT_FALSE(answered);
    }
}

TEST(HwTarnProxy, PassesOnTheServicesOwnFailure) {
    const sp<RecordingService> service = new RecordingService;
    service->answer = [](const hidl_string&, const IHwTarn::hwInvoke_cb& reply) -> Return<void> {
        reply("half");
        return Status::fromExceptionCode(Status::EX_UNSUPPORTED_OPERATION, "not today");
    };
    bool answered = false;
    const Return<void> result = proxyTo(service)->hwInvoke(
            "request", [&answered](const hidl_string&) { answered = true; });
    EXPECT_FALSE(result.isOk());
    EXPECT_FALSE(answered);
    EXPECT_NE(result.description().find("not today"), std::string::npos) << result.description();
}

TEST(HwTarnProxy, PassesOnATransportErrorThatTheServiceReturned) {
    const sp<RecordingService> service = new RecordingService;
    service->answer = [](const hidl_string&, const IHwTarn::hwInvoke_cb&) -> Return<void> {
        return Status::fromStatusT(DEAD_OBJECT);
    };
    EXPECT_TRUE(proxyTo(service)->hwInvoke("request", [](const hidl_string&) {}).isDeadObject());
}

TEST(HwTarnProxy, ReportsAServiceThatNeverAnswers) {
    const sp<RecordingService> service = new RecordingService;
    service->answer = [](const hidl_string&, const IHwTarn::hwInvoke_cb&) { return Void(); };
    bool answered = false;
    const Return<void> result = proxyTo(service)->hwInvoke(
            "request", [&answered](const hidl_string&) { answered = true; });
    EXPECT_FALSE(result.isOk());
    EXPECT_NE(result.description().find("_hidl_cb was not called"), std::string::npos);
    EXPECT_FALSE(result.isDeadObject());
    EXPECT_FALSE(answered);
}

TEST(HwTarnProxy, KeepsTheFirstOfTwoAnswers) {
    const sp<RecordingService> service = new RecordingService;
    service->answer = [](const hidl_string&, const IHwTarn::hwInvoke_cb& reply) {
        reply("first");
        reply("second");
        return Void();
    };
    EXPECT_EQ(invoke(proxyTo(service), "request"), "first");
    Parcel data;
    Parcel reply;
    data.writeInterfaceToken(String16(kHwTarnToken));
    data.writeInt32(0);
    data.writeInt32(0);
    EXPECT_EQ(stubOf(service)->transact(kHwInvoke, data, &reply), OK);
    EXPECT_EQ(reply.dataSize(), 16u) << "status, length, five letters with their NUL";
}

TEST(HwTarnProxy, KnowsNoReservedMethods) {
    const sp<RecordingService> service = new RecordingService;
    for (const sp<IHwTarn>& target : {sp<IHwTarn>(service), proxyTo(service)}) {
        EXPECT_FALSE(target->hwReserved1().isOk());
        EXPECT_FALSE(target->hwReserved4().isOk());
        EXPECT_FALSE(target->hwReserved1().isDeadObject());
    }
}

TEST(HwTarnProxy, AnswersTheBaseInterface) {
    const sp<RecordingService> service = new RecordingService;
    const sp<IHwTarn> proxy = proxyTo(service);
    for (const sp<IHwTarn>& target : {sp<IHwTarn>(service), proxy}) {
        std::vector<hidl_string> chain;
        EXPECT_TRUE(target->interfaceChain([&chain](const hidl_vec<hidl_string>& names) {
                              chain = names;
                          }).isOk());
        EXPECT_EQ(chain, (std::vector<hidl_string>{kHwTarnToken, "android.hidl.base@1.0::IBase"}));
        std::string name;
        EXPECT_TRUE(target->interfaceDescriptor([&name](const hidl_string& descriptor) {
                              name = std::string(descriptor);
                          }).isOk());
        EXPECT_EQ(name, kHwTarnToken);
        EXPECT_TRUE(target->ping().isOk());
        IBase::DebugInfo debug;
        EXPECT_TRUE(target->getDebugInfo([&debug](const IBase::DebugInfo& info) {
                              debug = info;
                          }).isOk());
        EXPECT_EQ(debug.pid, getpid());
        EXPECT_EQ(debug.arch, sizeof(void*) == 8 ? IBase::DebugInfo::Architecture::IS_64BIT
                                                 : IBase::DebugInfo::Architecture::IS_32BIT);
    }
}

TEST(HwTarnProxy, SurvivesAHostileInterfaceChain) {
    const std::vector<Fill> answers = {
            nothing,
            [](Parcel* reply) { reply->writeInt32(-1); },
            [](Parcel* reply) { reply->writeInt32(0x7fffffff); },
            [](Parcel* reply) {
                reply->writeInt32(1);
                reply->writeInt32(0x7fffffff);
            },
    };
    for (const Fill& fill : answers) {
        const sp<IHwTarn> proxy = proxyToScripted([fill](const Parcel&, Parcel* reply) {
            reply->writeInt32(0);
            fill(reply);
            return OK;
        });
        EXPECT_FALSE(proxy->interfaceChain([](const hidl_vec<hidl_string>&) { FAIL(); }).isOk());
        EXPECT_FALSE(IHwTarn::castFrom(sp<IBase>(proxy)).isOk());
    }
}

TEST(HwTarnCast, GivesTheInterfaceThatTheObjectHas) {
    const sp<RecordingService> service = new RecordingService;
    const sp<IHwTarn> cast = IHwTarn::castFrom(sp<IBase>(service));
    EXPECT_EQ(cast, service);
    const sp<IHwTarnCallback> other = IHwTarnCallback::castFrom(sp<IBase>(service));
    EXPECT_EQ(other, nullptr);
    const sp<IHwTarn> null = IHwTarn::castFrom(sp<IBase>());
    EXPECT_EQ(null, nullptr);
    const sp<IHwTarn> remote = IHwTarn::castFrom(sp<IBase>(proxyTo(service)));
    ASSERT_NE(remote, nullptr);
    EXPECT_TRUE(remote->isRemote());
    EXPECT_EQ(invoke(remote, "ab"), "ba");
    EXPECT_TRUE(IHwTarn::castFrom(sp<IBase>(proxyToScripted([](const Parcel&, Parcel*) {
                    return DEAD_OBJECT;
                }))).isDeadObject());
}

TEST(HwTarnCallbackProxy, CarriesTextAndBytes) {
    const sp<RecordingCallback> callback = new RecordingCallback;
    const sp<IHwTarnCallback> proxy = new BpHwHwTarnCallback(stubOf(callback));
    EXPECT_TRUE(proxy->hwNotify(0xFFFFFFFF, -1, "t\0t"s).isOk());
    EXPECT_EQ(callback->lastType, 0xFFFFFFFFu);
    EXPECT_EQ(callback->lastArg, -1);
    EXPECT_EQ(callback->lastText, "t\0t"s);
    EXPECT_TRUE(proxy->hwNotify_vec(0x1402, 3, {1, 0, 2}).isOk());
    EXPECT_EQ(callback->lastType, 0x1402u);
    EXPECT_EQ(callback->lastArg, 3);
    EXPECT_EQ(callback->lastBytes, (std::vector<uint8_t>{1, 0, 2}));
    EXPECT_TRUE(proxy->hwNotify_vec(1, 0, hidl_vec<uint8_t>()).isOk());
    EXPECT_TRUE(callback->lastBytes.empty());
    const std::vector<uint8_t> big((1 << 20) + 1, 0xA5);
    EXPECT_TRUE(proxy->hwNotify_vec(1, 0, big).isOk());
    EXPECT_EQ(callback->lastBytes, big);
}

TEST(HwTarnCallbackProxy, PassesOnTheCallbacksOwnFailure) {
    struct FailingCallback : public RecordingCallback {
        Return<void> hwNotify(uint32_t, int32_t, const hidl_string&) override {
            return Status::fromExceptionCode(Status::EX_UNSUPPORTED_OPERATION, "no text");
        }
        Return<void> hwNotify_vec(uint32_t, int32_t, const hidl_vec<uint8_t>&) override {
            return Status::fromExceptionCode(Status::EX_ILLEGAL_STATE, "no bytes");
        }
    };
    const sp<IHwTarnCallback> proxy =
            new BpHwHwTarnCallback(stubOf(sp<RecordingCallback>(new FailingCallback)));
    const Return<void> ofText = proxy->hwNotify(1, 2, "text");
    EXPECT_FALSE(ofText.isOk());
    EXPECT_NE(ofText.description().find("no text"), std::string::npos) << ofText.description();
    const Return<void> ofBytes = proxy->hwNotify_vec(1, 2, {3});
    EXPECT_FALSE(ofBytes.isOk());
    EXPECT_NE(ofBytes.description().find("no bytes"), std::string::npos) << ofBytes.description();
}

TEST(HwTarnCallbackProxy, TakesAnAnswerThatIsCutOffForAnError) {
    const sp<IHwTarnCallback> proxy =
            new BpHwHwTarnCallback(scripted([](const Parcel&, Parcel*) { return OK; }));
    EXPECT_FALSE(proxy->hwNotify(1, 2, "text").isOk());
    EXPECT_FALSE(proxy->hwNotify_vec(1, 2, {3}).isOk());
}

}  // namespace
}  // namespace tarn::test
