#include <binder/Binder.h>
#include <binder/IServiceManager.h>
#include <binder/Parcel.h>
#include <gtest/gtest.h>
#include <hidl/HidlBinderSupport.h>
#include <hidl/HidlSupport.h>
#include <hidl/Status.h>
#include <unistd.h>
#include <vendor/zunt/hwtarn/1.0/BnHwHwTarn.h>
#include <vendor/zunt/hwtarn/1.0/BnHwHwTarnCallback.h>
#include <vendor/zunt/hwtarn/1.0/BpHwHwTarn.h>
#include <vendor/zunt/hwtarn/1.0/BpHwHwTarnCallback.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <cstdint>
#include <functional>
#include <iterator>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using namespace std::string_literals;

using ::android::BAD_TYPE;
using ::android::BAD_VALUE;
using ::android::BBinder;
using ::android::DEAD_OBJECT;
using ::android::FAILED_TRANSACTION;
using ::android::IBinder;
using ::android::NAME_NOT_FOUND;
using ::android::NOT_ENOUGH_DATA;
using ::android::OK;
using ::android::Parcel;
using ::android::sp;
using ::android::status_t;
using ::android::String16;
using ::android::UNKNOWN_TRANSACTION;
using ::android::wp;
using ::android::hardware::fromBinder;
using ::android::hardware::hidl_death_recipient;
using ::android::hardware::hidl_string;
using ::android::hardware::hidl_vec;
using ::android::hardware::HidlReturnRestriction;
using ::android::hardware::Return;
using ::android::hardware::setProcessHidlReturnRestriction;
using ::android::hardware::Status;
using ::android::hardware::toBinder;
using ::android::hardware::Void;
using ::android::hidl::base::V1_0::IBase;
using ::vendor::zunt::hwtarn::V1_0::BnHwHwTarn;
using ::vendor::zunt::hwtarn::V1_0::BnHwHwTarnCallback;
using ::vendor::zunt::hwtarn::V1_0::BpHwHwTarn;
using ::vendor::zunt::hwtarn::V1_0::BpHwHwTarnCallback;
using ::vendor::zunt::hwtarn::V1_0::IHwTarn;
using ::vendor::zunt::hwtarn::V1_0::IHwTarnCallback;

namespace {

constexpr uint32_t kHwRegisterCallback = 2;
constexpr uint32_t kHwInvoke = 3;
constexpr uint32_t kHwPostEvent = 5;
constexpr uint32_t kHwNotify = 1;
constexpr uint32_t kHwNotifyVec = 2;

const char kHwTarnToken[] = "vendor.zunt.hwtarn@1.0::IHwTarn";
const char kCallbackToken[] = "vendor.zunt.hwtarn@1.0::IHwTarnCallback";

/** A service that records what reaches it; by default it answers with the request reversed. */
class RecordingService : public IHwTarn {
  public:
    using Answer = std::function<Return<void>(const hidl_string&, const hwInvoke_cb&)>;

    Return<void> hwRegisterCallback(const sp<IHwTarnCallback>& callback, int32_t pid) override {
        calls++;
        registered = callback;
        registeredPid = pid;
        return Void();
    }
    Return<void> hwInvoke(const hidl_string& request, hwInvoke_cb _hidl_cb) override {
        calls++;
        lastRequest = std::string(request);
        return answer(request, _hidl_cb);
    }
    Return<void> hwPostEvent(int32_t what, const hidl_string& data) override {
        calls++;
        postedWhat = what;
        postedData = std::string(data);
        return Void();
    }

    Answer answer = [](const hidl_string& request, const hwInvoke_cb& reply) -> Return<void> {
        const std::string text = request;
        reply(std::string(text.rbegin(), text.rend()));
        return Void();
    };
    int calls = 0;
    sp<IHwTarnCallback> registered;
    int32_t registeredPid = 0;
    std::string lastRequest;
    int32_t postedWhat = 0;
    std::string postedData;
};

class RecordingCallback : public IHwTarnCallback {
  public:
    Return<void> hwNotify(uint32_t msgType, int32_t arg, const hidl_string& text) override {
        calls++;
        lastType = msgType;
        lastArg = arg;
        lastText = std::string(text);
        return Void();
    }
    Return<void> hwNotify_vec(uint32_t msgType, int32_t arg,
                              const hidl_vec<uint8_t>& data) override {
        calls++;
        lastType = msgType;
        lastArg = arg;
        lastBytes = data;
        return Void();
    }

    int calls = 0;
    uint32_t lastType = 0;
    int32_t lastArg = 0;
    std::string lastText;
    std::vector<uint8_t> lastBytes{0xEE};
};

/** Stands for another process's object: answers as it is told, and can be linked to. */
class ScriptedBinder : public BBinder {
  public:
    using Script = std::function<status_t(const Parcel&, Parcel*)>;
    explicit ScriptedBinder(Script script) : mScript(std::move(script)) {}

    BBinder* localBinder() override { return nullptr; }

    status_t linkToDeath(const sp<DeathRecipient>& recipient, void*, uint32_t) override {
        if (dead) return DEAD_OBJECT;
        links.push_back(recipient);
        return OK;
    }
    status_t unlinkToDeath(const wp<DeathRecipient>& recipient, void*, uint32_t,
                           wp<DeathRecipient>*) override {
        for (auto link = links.begin(); link != links.end(); ++link) {
            if (*link != recipient) continue;
            links.erase(link);
            return OK;
        }
        return NAME_NOT_FOUND;
    }
    void die() {
        dead = true;
        for (const wp<DeathRecipient>& link : std::exchange(links, {})) {
            if (const sp<DeathRecipient> recipient = link.promote()) recipient->binderDied(this);
        }
    }

    bool dead = false;
    std::vector<wp<DeathRecipient>> links;

  protected:
    status_t onTransact(uint32_t, const Parcel& data, Parcel* reply, uint32_t) override {
        return mScript(data, reply);
    }

  private:
    Script mScript;
};

class RecordingDeathRecipient : public hidl_death_recipient {
  public:
    void serviceDied(uint64_t cookie, const wp<IBase>& who) override {
        cookies.push_back(cookie);
        lastWho = who;
    }
    std::vector<uint64_t> cookies;
    wp<IBase> lastWho;
};

sp<IBinder> stubOf(const sp<RecordingService>& service) {
    return toBinder<IHwTarn, BnHwHwTarn>(sp<IHwTarn>(service));
}

sp<IBinder> stubOf(const sp<RecordingCallback>& callback) {
    return toBinder<IHwTarnCallback, BnHwHwTarnCallback>(sp<IHwTarnCallback>(callback));
}

sp<IHwTarn> proxyTo(const sp<RecordingService>& service) {
    return new BpHwHwTarn(stubOf(service));
}

sp<ScriptedBinder> scripted(ScriptedBinder::Script script) {
    return new ScriptedBinder(std::move(script));
}

sp<IHwTarn> proxyToScripted(ScriptedBinder::Script script) {
    return new BpHwHwTarn(scripted(std::move(script)));
}

std::string invoke(const sp<IHwTarn>& service, const std::string& request) {
    std::string answer = "no answer";
    const Return<void> result = service->hwInvoke(
            request, [&answer](const hidl_string& reply) { answer = std::string(reply); });
    EXPECT_TRUE(result.isOk()) << result.description();
    return answer;
}

std::string everyByte(size_t size) {
    std::string bytes(size, '\0');
    for (size_t i = 0; i < size; i++) bytes[i] = static_cast<char>(i * 7);
    return bytes;
}

using Fill = std::function<void(Parcel*)>;

status_t send(const sp<IBinder>& stub, uint32_t code, const char* token, const Fill& fill) {
    Parcel data;
    Parcel reply;
    if (token != nullptr) data.writeInterfaceToken(String16(token));
    fill(&data);
    return stub->transact(code, data, &reply);
}

void nothing(Parcel*) {}

}  // namespace

TEST(HidlString, IsEmptyButNeverNull) {
    EXPECT_STREQ(hidl_string().c_str(), "");
    EXPECT_TRUE(hidl_string().empty());
    EXPECT_STREQ(hidl_string(static_cast<const char*>(nullptr)).c_str(), "");
    EXPECT_STREQ(hidl_string(nullptr, 0).c_str(), "");
}

TEST(HidlString, KeepsEmbeddedZeroBytes) {
    const hidl_string text("a\0b\0"s);
    EXPECT_EQ(text.size(), 4u);
    EXPECT_EQ(std::string(text), "a\0b\0"s);
    EXPECT_EQ(hidl_string("x\0y", 3), hidl_string("x\0y"s));
    EXPECT_NE(hidl_string("x\0y", 3), hidl_string("x\0z", 3));
    EXPECT_EQ(text.c_str()[4], '\0');
}

TEST(HidlString, CopiesAndMoves) {
    hidl_string first("first");
    const hidl_string copy = first;
    const hidl_string moved = std::move(first);
    EXPECT_EQ(copy, moved);
    EXPECT_TRUE(first.empty());  // NOLINT(bugprone-use-after-move)
    first = "again";
    first = *&first;
    EXPECT_EQ(first, hidl_string("again"));
    first = "other"s;
    EXPECT_EQ(std::string(first), "other");
    first.clear();
    EXPECT_EQ(first, hidl_string());
}

TEST(HidlString, BorrowsExternalBytes) {
    const std::string bytes = "a\0c"s;
    hidl_string text("before");
    text.setToExternal(bytes.data(), bytes.size());
    EXPECT_EQ(static_cast<const void*>(text.c_str()), bytes.data());
    EXPECT_EQ(std::string(text), bytes);
    const hidl_string copy = text;
    EXPECT_NE(static_cast<const void*>(copy.c_str()), bytes.data());
    EXPECT_EQ(copy, text);
}

TEST(HidlStringDeathTest, AbortsOnExternalBytesWithoutAFinalZero) {
    EXPECT_DEATH(
            {
                hidl_string text;
                text.setToExternal("abc", 2);
            },
            "");
}

TEST(HidlString, Orders) {
    EXPECT_LT(hidl_string("a"), hidl_string("ab"));
    EXPECT_LT(hidl_string("ab"), hidl_string("b"));
    EXPECT_GE(hidl_string("b"), hidl_string("b"));
    EXPECT_GT(hidl_string("b"), hidl_string("a"));
}

TEST(HidlVec, CopiesMovesAndCompares) {
    hidl_vec<uint8_t> first{1, 2, 3};
    const hidl_vec<uint8_t> copy = first;
    EXPECT_EQ(copy, first);
    const hidl_vec<uint8_t> moved = std::move(first);
    EXPECT_EQ(copy, moved);
    EXPECT_EQ(first.size(), 0u);  // NOLINT(bugprone-use-after-move)
    first = std::vector<uint8_t>{4, 5};
    EXPECT_EQ(std::vector<uint8_t>(first), (std::vector<uint8_t>{4, 5}));
    EXPECT_NE(first, copy);
    first = *&first;
    EXPECT_EQ(first[1], 5);
    EXPECT_TRUE(copy.contains(3));
    EXPECT_FALSE(copy.contains(4));
}

TEST(HidlVec, ResizesAndKeepsWhatFits) {
    hidl_vec<int> numbers{1, 2, 3};
    numbers.resize(5);
    EXPECT_EQ(numbers, (hidl_vec<int>{1, 2, 3, 0, 0}));
    numbers.resize(2);
    EXPECT_EQ(numbers, (hidl_vec<int>{1, 2}));
    numbers.resize(0);
    EXPECT_EQ(numbers.begin(), numbers.end());
}

TEST(HidlVec, BorrowsOrOwnsExternalElements) {
    int borrowed[] = {7, 8};
    hidl_vec<int> numbers{1};
    numbers.setToExternal(borrowed, 2);
    EXPECT_EQ(numbers.data(), borrowed);
    const hidl_vec<int> copy = numbers;
    EXPECT_NE(copy.data(), borrowed);
    numbers.setToExternal(new int[1]{9}, 1, true);
    EXPECT_EQ(numbers, (hidl_vec<int>{9}));
    int* released = numbers.releaseData();
    EXPECT_EQ(numbers.size(), 0u);
    delete[] released;
}

TEST(HidlStatus, TellsATransportErrorFromAnException) {
    EXPECT_TRUE(Status::ok().isOk());
    EXPECT_TRUE(Status::fromStatusT(OK).isOk());
    const Status dead = Status::fromStatusT(DEAD_OBJECT);
    EXPECT_EQ(dead.exceptionCode(), Status::EX_TRANSACTION_FAILED);
    EXPECT_EQ(dead.transactionError(), DEAD_OBJECT);
    EXPECT_NE(dead.description().find("DEAD_OBJECT"), std::string::npos) << dead;
    const Status refused = Status::fromExceptionCode(Status::EX_ILLEGAL_ARGUMENT, "why");
    EXPECT_EQ(refused.transactionError(), OK);
    EXPECT_STREQ(refused.exceptionMessage(), "why");
    EXPECT_NE(refused.description().find("why"), std::string::npos) << refused;
    EXPECT_EQ(Status::fromExceptionCode(Status::EX_TRANSACTION_FAILED).transactionError(),
              FAILED_TRANSACTION);
}

TEST(HidlReturn, CarriesAValueOrAFailure) {
    const Return<bool> value = true;
    EXPECT_TRUE(value.isOk());
    EXPECT_TRUE(value);
    const Return<int32_t> failed = Status::fromStatusT(BAD_VALUE);
    EXPECT_FALSE(failed.isOk());
    EXPECT_FALSE(failed.isDeadObject());
    EXPECT_EQ(failed.withDefault(-3), -3);
    Return<void> assigned = Void();
    assigned = Status::fromStatusT(DEAD_OBJECT);
    EXPECT_TRUE(assigned.isDeadObject());
}

TEST(HidlReturnDeathTest, AbortsWhenTheValueOfAFailedCallIsRead) {
    EXPECT_DEATH(
            {
                const Return<bool> failed = Status::fromStatusT(DEAD_OBJECT);
                const bool value = failed;
                _exit(value ? 1 : 0);
            },
            "");
}

TEST(HidlReturnDeathTest, ToleratesAnUncheckedFailureUnlessRestricted) {
    { const Return<void> unchecked = Status::fromStatusT(DEAD_OBJECT); }
    EXPECT_DEATH(
            {
                setProcessHidlReturnRestriction(HidlReturnRestriction::FATAL_IF_UNCHECKED);
                const Return<void> unchecked = Status::fromStatusT(DEAD_OBJECT);
            },
            "");
    EXPECT_EXIT(
            {
                setProcessHidlReturnRestriction(HidlReturnRestriction::FATAL_IF_UNCHECKED);
                {
                    const Return<void> checked = Status::fromStatusT(DEAD_OBJECT);
                    checked.isOk();
                    Return<void> moved = Void();
                    moved = Status::fromStatusT(DEAD_OBJECT);
                    const Return<void> target = std::move(moved);
                    target.isDeadObject();
                }
                _exit(0);
            },
            testing::ExitedWithCode(0), "");
}

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
        int32_t pid = 0;
        EXPECT_TRUE(target->getDebugInfo([&pid](const IBase::DebugInfo& info) {
                              pid = info.pid;
                          }).isOk());
        EXPECT_EQ(pid, getpid());
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

TEST(HwTarnStub, RefusesAMessageWithoutTheRightToken) {
    const sp<RecordingService> service = new RecordingService;
    const sp<IBinder> stub = stubOf(service);
    const Fill request = [](Parcel* data) {
        data->writeInt32(1);
        data->write("a\0", 2);
    };
    EXPECT_EQ(send(stub, kHwInvoke, kHwTarnToken, request), OK);
    EXPECT_EQ(send(stub, kHwInvoke, kCallbackToken, request), BAD_TYPE);
    EXPECT_EQ(send(stub, kHwInvoke, "", request), BAD_TYPE);
    EXPECT_EQ(send(stub, kHwInvoke, nullptr, request), BAD_TYPE);
    EXPECT_EQ(send(stub, kHwInvoke, nullptr, nothing), BAD_TYPE);
    EXPECT_EQ(service->calls, 1);
}

TEST(HwTarnStub, AnswersMalformedMessagesWithAnError) {
    const sp<RecordingService> service = new RecordingService;
    const sp<IBinder> stub = stubOf(service);
    const struct {
        uint32_t code;
        status_t expected;
        Fill fill;
    } messages[] = {
            {kHwInvoke, NOT_ENOUGH_DATA, nothing},
            {kHwInvoke, BAD_VALUE, [](Parcel* data) { data->writeInt32(-1); }},
            {kHwInvoke, BAD_VALUE, [](Parcel* data) { data->writeInt32(INT32_MIN); }},
            {kHwInvoke, NOT_ENOUGH_DATA, [](Parcel* data) { data->writeInt32(INT32_MAX); }},
            {kHwInvoke, NOT_ENOUGH_DATA, [](Parcel* data) { data->writeInt32(INT32_MAX - 1); }},
            {kHwInvoke, NOT_ENOUGH_DATA, [](Parcel* data) { data->writeInt32(0); }},
            {kHwInvoke, NOT_ENOUGH_DATA,
             [](Parcel* data) {
                 data->writeInt32(4);
                 data->write("abcd", 4);
             }},
            {kHwInvoke, BAD_VALUE,
             [](Parcel* data) {
                 data->writeInt32(3);
                 data->write("abcd", 4);
             }},
            {kHwPostEvent, NOT_ENOUGH_DATA, nothing},
            {kHwPostEvent, NOT_ENOUGH_DATA, [](Parcel* data) { data->writeInt32(1); }},
            {kHwPostEvent, NOT_ENOUGH_DATA,
             [](Parcel* data) {
                 data->writeInt32(1);
                 data->writeInt32(1000);
                 data->writeInt32(0);
             }},
            {kHwRegisterCallback, BAD_TYPE, nothing},
            {kHwRegisterCallback, NOT_ENOUGH_DATA,
             [](Parcel* data) { data->writeStrongBinder(nullptr); }},
            {kHwRegisterCallback, BAD_TYPE,
             [](Parcel* data) {
                 data->write("This is no binder...", 20);
                 data->writeInt32(1);
                 data->writeInt32(1);
             }},
            {kHwRegisterCallback, BAD_TYPE,
             [](Parcel* data) {
                 data->writeStrongBinder(new BBinder);
                 data->writeInt32(1);
             }},
            {kHwRegisterCallback, BAD_TYPE,
             [&stub](Parcel* data) {
                 data->writeStrongBinder(stub);
                 data->writeInt32(1);
             }},
    };
    for (size_t i = 0; i < std::size(messages); i++) {
        SCOPED_TRACE(i);
        EXPECT_EQ(send(stub, messages[i].code, kHwTarnToken, messages[i].fill),
                  messages[i].expected);
    }
    EXPECT_EQ(service->calls, 0);
}

TEST(HwTarnStub, AnswersUnknownCodesWithAnError) {
    const sp<RecordingService> service = new RecordingService;
    const sp<IBinder> stub = stubOf(service);
    for (const uint32_t code : {0u, 1u, 4u, 6u, 0x00ffffffu, 0x7fffffffu}) {
        SCOPED_TRACE(code);
        EXPECT_EQ(send(stub, code, kHwTarnToken, nothing), UNKNOWN_TRANSACTION);
    }
    EXPECT_EQ(service->calls, 0);
}

TEST(HwTarnStub, NeedsNoReply) {
    const sp<RecordingService> service = new RecordingService;
    Parcel data;
    data.writeInterfaceToken(String16(kHwTarnToken));
    data.writeInt32(1);
    data.write("a\0", 2);
    EXPECT_EQ(stubOf(service)->transact(kHwInvoke, data, nullptr), OK);
    EXPECT_EQ(service->lastRequest, "a");
}

TEST(HwTarnStub, NamesItsInterface) {
    const sp<RecordingService> service = new RecordingService;
    EXPECT_EQ(stubOf(service)->getInterfaceDescriptor(), String16(kHwTarnToken));
}

TEST(HwTarnCallbackStub, AnswersMalformedEventsWithAnError) {
    const sp<RecordingCallback> callback = new RecordingCallback;
    const sp<IBinder> stub = stubOf(callback);
    for (const uint32_t code : {kHwNotify, kHwNotifyVec}) {
        for (const int32_t length : {-1, 5, 0x7fffffff}) {
            SCOPED_TRACE(testing::Message() << code << " " << length);
            EXPECT_NE(send(stub, code, kCallbackToken,
                           [length](Parcel* data) {
                               data->writeInt32(1);
                               data->writeInt32(2);
                               data->writeInt32(length);
                               data->writeInt32(0);
                           }),
                      OK);
        }
        EXPECT_NE(send(stub, code, kCallbackToken, [](Parcel* data) { data->writeInt32(1); }), OK);
        EXPECT_EQ(send(stub, code, kHwTarnToken, nothing), BAD_TYPE);
    }
    EXPECT_EQ(send(stub, 3, kCallbackToken, nothing), UNKNOWN_TRANSACTION);
    EXPECT_EQ(callback->calls, 0);
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
