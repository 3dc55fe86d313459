#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <functional>
#include <string>
#include <vector>

#include "modules/TeaDspCtrl.h"
#include "tests/support/LogCalls.h"
#include "tests/support/RecordingManager.h"

using android::ITeaDspCtrl;
using android::Parcel;
using android::sp;
using tarn::test::hex;
using tarn::test::LogCall;
using tarn::test::logCalls;
using tarn::test::RecordingManager;
using tarn::test::Reply;
using tarn::test::words;

namespace {

using LogCalls = std::vector<LogCall>;

/** The calls so far, from whatever source line. */
LogCalls calls() {
    LogCalls calls = logCalls();
    for (LogCall& call : calls) call.line = 0;
    return calls;
}

LogCall entry(const std::string& method) {
    return {TARN_LOG_DEBUG, false, method, 0, "[" + method + "] ++ \n"};
}

LogCall ok(const std::string& method) {
    return {TARN_LOG_DEBUG, false, method, 0, "[" + method + "]  tarn_ok, ret = 0\n"};
}

LogCall error(const std::string& method, int ret) {
    return {TARN_LOG_ERROR, false, method, 0,
            "[" + method + "]  tarn_error, ret = " + std::to_string(ret) + "\n"};
}

/** Keeps the calls that came before the last command. */
class LogCallsManager : public RecordingManager {
  public:
    int invoke(const Parcel& request, Parcel* reply) override {
        callsBefore = calls();
        return RecordingManager::invoke(request, reply);
    }

    LogCalls callsBefore;
};

class TeaDspCtrl : public ::testing::Test {
  protected:
    TeaDspCtrl() { logCalls().clear(); }

    sp<LogCallsManager> manager = new LogCallsManager;
    const sp<ITeaDspCtrl> tea = new android::TeaDspCtrl(manager);
};

}  // namespace

TEST_F(TeaDspCtrl, LogsTheMuteStateOfADeviceAsAnErrorUnlessItIsZero) {
    manager->answer(words({0}));
    EXPECT_EQ(tea->GetDeviceMute(3), 0);
    manager->answer(words({1}));
    EXPECT_EQ(tea->GetDeviceMute(3), 1);
    manager->answer(words({-1}));
    EXPECT_EQ(tea->GetDeviceMute(3), -1);

    EXPECT_EQ(calls(), (LogCalls{entry("GetDeviceMute"), ok("GetDeviceMute"),
                                 entry("GetDeviceMute"), error("GetDeviceMute", 1),
                                 entry("GetDeviceMute"), error("GetDeviceMute", -1)}));
}

TEST_F(TeaDspCtrl, LogsTheOutcomeOfSettingThePoeSinkRoute) {
    manager->answer(words({0}));
    EXPECT_EQ(tea->SetDevicePoeSinkRouteMode(2), 0);
    manager->answer(words({-7}));
    EXPECT_EQ(tea->SetDevicePoeSinkRouteMode(2), -7);

    EXPECT_EQ(
            calls(),
            (LogCalls{entry("SetDevicePoeSinkRouteMode"), ok("SetDevicePoeSinkRouteMode"),
                      entry("SetDevicePoeSinkRouteMode"), error("SetDevicePoeSinkRouteMode", -7)}));
}

TEST_F(TeaDspCtrl, ReadsTheDeviceInformationAndLogsOnlyTheEntry) {
    manager->answer(Reply(-5).s16("d\xc3\xa9vice 2"));
    EXPECT_EQ(tea->GetDeviceInformation(), "d\xc3\xa9vice 2");
    EXPECT_EQ(calls(), LogCalls{entry("GetDeviceInformation")});
}

TEST_F(TeaDspCtrl, LogsDeviceInformationThatCannotBeRead) {
    manager->answer(Reply(-1).s16("device 2"));
    EXPECT_EQ(tea->GetDeviceInformation(), "");
    EXPECT_EQ(calls(),
              (LogCalls{entry("GetDeviceInformation"), error("GetDeviceInformation", -1)}));
}

TEST_F(TeaDspCtrl, ReadsThePoeSinkRouteBehindTheStatus) {
    manager->answer(words({-5, 42}));
    EXPECT_EQ(tea->GetDevicePoeSinkRouteMode(), 42);
    EXPECT_EQ(calls(),
              (LogCalls{entry("GetDevicePoeSinkRouteMode"), ok("GetDevicePoeSinkRouteMode")}));
}

TEST_F(TeaDspCtrl, ReturnsMinusOneForThePoeSinkRouteWhenTheServiceIsDead) {
    manager->answer(words({-1, 42}));
    EXPECT_EQ(tea->GetDevicePoeSinkRouteMode(), -1);
    EXPECT_EQ(calls(), (LogCalls{entry("GetDevicePoeSinkRouteMode"),
                                 error("GetDevicePoeSinkRouteMode", -1)}));
}

TEST_F(TeaDspCtrl, SendsAnAttachStateAsTextIntTextBoolText) {
    EXPECT_EQ(tea->DevicePortAttachStateUpdate("p\xc3\xa9", 7, "", true, "abc"), 0);

    EXPECT_EQ(manager->requests().at(0),
              hex("09210000  02000000 7000e900 00000000  07000000  00000000 00000000  01000000  "
                  "03000000 61006200 63000000"));
    EXPECT_EQ(calls(),
              (LogCalls{entry("DevicePortAttachStateUpdate"), ok("DevicePortAttachStateUpdate")}));
}

TEST_F(TeaDspCtrl, LogsAnAttachStateThatCannotBeSent) {
    manager->answer(words({-1}));
    EXPECT_EQ(tea->DevicePortAttachStateUpdate("a", 7, "b", false, "c"), -1);
    EXPECT_EQ(calls(), (LogCalls{entry("DevicePortAttachStateUpdate"),
                                 error("DevicePortAttachStateUpdate", -1)}));
}

TEST_F(TeaDspCtrl, LogsTheEntryBeforeTheCommand) {
    const struct {
        const char* name;
        std::function<void(ITeaDspCtrl&)> call;
    } methods[] = {
            {"GetDeviceInformation", [](auto& t) { t.GetDeviceInformation(); }},
            {"GetDeviceMute", [](auto& t) { t.GetDeviceMute(3); }},
            {"SetDevicePoeSinkRouteMode", [](auto& t) { t.SetDevicePoeSinkRouteMode(2); }},
            {"GetDevicePoeSinkRouteMode", [](auto& t) { t.GetDevicePoeSinkRouteMode(); }},
            {"DevicePortAttachStateUpdate",
             [](auto& t) { t.DevicePortAttachStateUpdate("a", 7, "b", false, "c"); }},
    };
    manager->answer(Reply(0).s16(""));
    for (const auto& method : methods) {
        logCalls().clear();
        manager->callsBefore.clear();
        method.call(*tea);
        EXPECT_EQ(manager->callsBefore, LogCalls{entry(method.name)});
    }
}

TEST_F(TeaDspCtrl, LogsNothingInItsOtherMethods) {
    manager->answer(words({-1}));
    tea->setTeaMicAlgorithm(true);
    tea->getTeaMicAlgorithm();
    tea->getDeviceStatus();
    EXPECT_EQ(tea->GetAllDeviceInformation(), "");
    tea->SetDeviceLineoutSinkRouteMode(1);
    tea->GetDeviceLineoutSinkRouteMode();
    EXPECT_EQ(tea->GetDevicePortAttachInformation(), "");
    tea->SetDeviceOffHook(1);
    tea->SetDeviceMicrophoneOverallMute(1);
    tea->GetDeviceMicrophoneOverallMute();
    tea->SetDeviceRingCall(1);

    EXPECT_TRUE(calls().empty());
}
