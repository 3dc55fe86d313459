// Replies that come from another process than the one that was called: the bus of a session passes
// them on.

#include <binder/IServiceManager.h>
#include <binder/Parcel.h>
#include <gtest/gtest.h>
#include <sdbus-c++/sdbus-c++.h>
#include <utils/String8.h>

#include <atomic>
#include <functional>
#include <future>
#include <memory>
#include <string>

#include "host/binder/dbus/MessageFormat.h"
#include "tests/process/Desk.h"
#include "tests/process/Forger.h"
#include "tests/process/ProcessTest.h"

namespace tarn::test {
namespace {

using android::DEAD_OBJECT;
using android::FAILED_TRANSACTION;
using android::IBinder;
using android::NO_ERROR;
using android::Parcel;
using android::sp;
using android::status_t;
using android::String16;
using namespace android::host::dbus;

constexpr char kName[] = "tarn.test.honest";
constexpr char kBusName[] = "tarn.binder.name_tarn-dtest-dhonest";

// More than a process of these tests sends.
constexpr uint32_t kCalls = 300;

// Status 0, no objects, no bytes.
const std::string kEmptyResult = std::string(8, '\0') + std::string("\2ay\0\0\0\0\0", 8);

// One text, which would be a service's name.
const std::string kNames =
        std::string("\34\0\0\0\27\0\0\0", 8) + "tarn.binder.name_forged" + std::string(1, '\0');

// A service that answers with 77, after its test had the time to do something else.
class Honest {
  public:
    explicit Honest(std::function<void(const std::string& caller)> before)
        : mConnection(sdbus::createSessionBusConnectionWithAddress(theBus().address())) {
        const std::string name = mConnection->getUniqueName();
        mObject = sdbus::createObject(*mConnection, kObjectPath);
        mObject->registerMethod(kInterface, kLookup, "s", "st", [name](sdbus::MethodCall call) {
            sdbus::MethodReply reply = call.createReply();
            reply << name << uint64_t{4};
            reply.send();
        });
        mObject->registerMethod(kInterface, kTransact, std::string("tuu") + kContentSignature,
                                std::string("i") + kContentSignature,
                                [before](sdbus::MethodCall call) {
                                    before(call.getSender());
                                    sdbus::MethodReply reply = call.createReply();
                                    reply << int32_t{0};
                                    write(reply, {{}, {77, 0, 0, 0}});
                                    reply.send();
                                });
        mObject->registerMethod(kInterface, kRelease, "tu", "", [](sdbus::MethodCall) {});
        mObject->finishRegistration();
        mConnection->requestName(kBusName);
        mConnection->enterEventLoopAsync();
    }
    ~Honest() { mConnection->leaveEventLoop(); }

  private:
    std::unique_ptr<sdbus::IConnection> mConnection;
    std::unique_ptr<sdbus::IObject> mObject;
};

// The int32 that a call is answered with, or its failure.
int32_t call(const sp<IBinder>& binder) {
    Parcel data;
    Parcel reply;
    const status_t status = binder->transact(1, data, &reply);
    return status == NO_ERROR ? reply.readInt32() : status;
}

TEST(Forgery, ResultsOfOthersAreNotBelieved) {
    Forger forger;
    std::atomic<bool> forging{true};
    const Honest honest([&](const std::string& caller) {
        if (!forging) return;
        forger.answer(caller, kCalls, std::string("i") + kContentSignature, kEmptyResult);
        forger.settle();
    });
    const sp<IBinder> proxy = android::defaultServiceManager()->checkService(String16(kName));
    ASSERT_NE(nullptr, proxy);
    EXPECT_EQ(FAILED_TRANSACTION, call(proxy));
    forging = false;
    // Some of what was forged may still be on its way.
    EXPECT_TRUE(eventually([&] { return call(proxy) == 77; }));
}

TEST(Forgery, NobodyCanSayThatAnotherIsDead) {
    Forger forger;
    std::atomic<bool> forging{true};
    const Honest honest([&](const std::string& caller) {
        if (!forging) return;
        forger.fail(caller, kCalls, "org.freedesktop.DBus.Error.NoReply");
        forger.settle();
    });
    const sp<IBinder> proxy = android::defaultServiceManager()->checkService(String16(kName));
    ASSERT_NE(nullptr, proxy);
    EXPECT_EQ(FAILED_TRANSACTION, call(proxy));
    forging = false;
    // Some of what was forged may still be on its way.
    EXPECT_TRUE(eventually([&] { return call(proxy) == 77; }));
    EXPECT_TRUE(proxy->isBinderAlive());
}

std::string ownerOf(const std::string& busName) {
    const auto connection = sdbus::createSessionBusConnectionWithAddress(theBus().address());
    std::string owner;
    sdbus::createProxy(*connection, "org.freedesktop.DBus", "/org/freedesktop/DBus")
            ->callMethod("GetNameOwner")
            .onInterface("org.freedesktop.DBus")
            .withArguments(busName)
            .storeResultsTo(owner);
    return owner;
}

std::string servicesListed() {
    std::string all;
    for (const String16& name : android::defaultServiceManager()->listServices()) {
        all += android::String8(name).string();
        all += ' ';
    }
    return all;
}

TEST(Forgery, NobodyAnswersInPlaceOfTheBus) {
    android::defaultServiceManager()->addService(String16("own"), new Desk);
    const std::string self = ownerOf("tarn.binder.name_own");
    std::atomic<bool> ended{false};
    auto forging = std::async(std::launch::async, [&] {
        Forger forger;
        while (!ended) {
            forger.answer(self, kCalls, "as", kNames);
            forger.settle();
        }
    });
    // Whose message is first is chance, each time.
    for (int i = 0; i < 100; i++) EXPECT_EQ(std::string::npos, servicesListed().find("forged"));
    ended = true;
    forging.get();
}

// A reference to an object of a process that there is not.
const std::string kForgedService(
        "\6\0\0\0:1.999\0\0\0\0\0\0"
        "\5\0\0\0\0\0\0\0",
        24);

TEST(Forgery, NobodyAnswersALookupInPlaceOfTheOwner) {
    const Honest honest([](const std::string&) {});
    android::defaultServiceManager()->addService(String16("own"), new Desk);
    const std::string self = ownerOf("tarn.binder.name_own");
    std::atomic<bool> ended{false};
    auto forging = std::async(std::launch::async, [&] {
        Forger forger;
        while (!ended) {
            forger.answer(self, 2 * kCalls, "st", kForgedService);
            forger.settle();
        }
    });
    // Whose message is first is chance, each time; one that is forged finds nothing, or fails a
    // ping.
    for (int i = 0; i < 100; i++) {
        const sp<IBinder> found = android::defaultServiceManager()->checkService(String16(kName));
        EXPECT_TRUE(found == nullptr || found->pingBinder() != DEAD_OBJECT);
    }
    ended = true;
    forging.get();
}

}  // namespace
}  // namespace tarn::test
