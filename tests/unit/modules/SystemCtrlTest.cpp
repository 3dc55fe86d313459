#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "modules/SystemCtrl.h"
#include "tests/support/LogCapture.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"
#include "tests/support/RecordingManager.h"

using android::_EnumCecCtlType_;
using android::_EnumRefreshRate_;
using android::_EnumSelinuxMode_;
using android::_EnumTempType_;
using android::EnumCustomerBootMediaType;
using android::ISystemCtrl;
using android::sp;
using android::String16;
using android::SystemCtrl;
using tarn::test::Bytes;
using tarn::test::LogCapture;
using tarn::test::Logged;
using tarn::test::LogWatchingManager;
using tarn::test::RecordingManager;
using tarn::test::words;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Fixture {
    sp<RecordingManager> manager{new RecordingManager};
    sp<SystemCtrl> system{new SystemCtrl(manager)};
};

_EnumSelinuxMode_ selinuxMode(int value) {
    return static_cast<_EnumSelinuxMode_>(value);
}

_EnumTempType_ tempType(int value) {
    return static_cast<_EnumTempType_>(value);
}

/** An empty text; a missing one would make the platform log a line of its own. */
const Bytes kEmptyText = words({0, 0, 0});

char kPath[] = "/data/boot.ts";

}  // namespace

TEST(SystemCtrl, RefusesUnknownSelinuxModesWithoutACommandAndLogsEachOnce) {
    for (const int mode : {0, 4, -1}) {
        Fixture f;
        LogCapture log;
        EXPECT_EQ(f.system->setSelinuxMode(selinuxMode(mode)), -1);
        EXPECT_THAT(f.manager->requests(), IsEmpty());
        EXPECT_THAT(log.lines(),
                    ElementsAre(Logged(TARN_LOG_ERROR, "Zunt@SystemCtrl", "setSelinuxMode",
                                       "have no this selinux mode ,set failed !")));
    }
}

TEST(SystemCtrl, SetsAKnownSelinuxModeWithoutALine) {
    Fixture f;
    LogCapture log;
    f.manager->answer(words({-5}));
    EXPECT_EQ(f.system->setSelinuxMode(android::SELINUX_MODE_2), -5);
    EXPECT_THAT(f.manager->requests(), ElementsAre(words({1, 2})));
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST(SystemCtrl, ReadsAnUnknownSelinuxModeAsThreeAndLogsTheAnswer) {
    for (const int answer : {0, -1, 4}) {
        Fixture f;
        LogCapture log;
        f.manager->answer(words({answer}));
        EXPECT_EQ(f.system->getSelinuxMode(), 3);
        EXPECT_THAT(log.lines(),
                    ElementsAre(Logged(TARN_LOG_ERROR, "Zunt@SystemCtrl", "getSelinuxMode",
                                       "have no this selinux mode ,set failed !, ret = " +
                                               std::to_string(answer))));
    }
}

TEST(SystemCtrl, ReadsAKnownSelinuxModeWithoutALine) {
    Fixture f;
    LogCapture log;
    for (const int mode : {1, 2, 3}) {
        f.manager->answer(words({mode}));
        EXPECT_EQ(f.system->getSelinuxMode(), mode);
    }
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST(SystemCtrl, RefusesNegativeThresholdsAndUnknownSensorsInSilence) {
    Fixture f;
    LogCapture log;
    EXPECT_FALSE(f.system->setTempThreshold(tempType(1), -5));
    EXPECT_FALSE(f.system->setTempThreshold(tempType(3), 40));
    EXPECT_FALSE(f.system->setTempThreshold(tempType(0), 40));
    EXPECT_EQ(f.system->getTempThreshold(tempType(3)), -1);
    EXPECT_EQ(f.system->getTempThreshold(tempType(0)), -1);
    EXPECT_THAT(f.manager->requests(), IsEmpty());
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST(SystemCtrl, AcceptsAThresholdOfZero) {
    Fixture f;
    EXPECT_TRUE(f.system->setTempThreshold(android::TEMP_TYPE_SENSOR_2, 0));
    EXPECT_THAT(f.manager->requests(), ElementsAre(words({3, 2, 0})));
}

TEST(SystemCtrl, SendsABootMediumsPathAsUtf16BehindTheCode) {
    Fixture f;
    char path[] = "/\xc3\xa9";
    f.system->replaceBootLogo(path);
    EXPECT_THAT(f.manager->requests(),
                ElementsAre(tarn::test::hex("0a000000 02000000 2f00e900 00000000")));
}

TEST(SystemCtrl, ReportsABootMediumAsNotReplacedWhenTheServiceFailsOrSaysSo) {
    Fixture f;
    for (const Bytes& reply : {words({-1, 1}), words({0, 0}), words({0}), Bytes{}}) {
        f.manager->answer(reply);
        EXPECT_FALSE(f.system->replaceBootVideo(kPath));
        EXPECT_FALSE(f.system->replaceBootLogo(kPath));
        EXPECT_FALSE(f.system->replaceBootAnimation(kPath));
        EXPECT_FALSE(f.system->resetBootVideo());
        EXPECT_FALSE(f.system->resetBootLogo());
        EXPECT_FALSE(f.system->resetBootAnimation());
    }
}

TEST(SystemCtrl, DoesNotTakeTheTestSuiteAsRunningWhenTheCommandFailed) {
    Fixture f;
    f.manager->answer(words({-1, 1}));
    EXPECT_FALSE(f.system->isCtsRunning());
    // Any other status is a success, and the answer decides.
    for (const int status : {0, 1, -5}) {
        f.manager->answer(words({status, 1}));
        EXPECT_TRUE(f.system->isCtsRunning()) << status;
        f.manager->answer(words({status, 0}));
        EXPECT_FALSE(f.system->isCtsRunning()) << status;
    }
}

TEST(SystemCtrl, GivesAnEmptyTextForFailedShortAndHostileReplies) {
    Fixture f;
    const std::vector<Bytes> replies = {
            words({-1, 2, 0x00320034, 0}),
            words({0}),
            Bytes{},
            Bytes{0, 0},
            words({0, -1}),               // the null text
            words({0, 0x7fffffff}),       // longer than any reply
            words({0, -2147483647 - 1}),  // negative
            words({0, 100, 0x00320034}),  // cut off
            words({0, 2, 0x00320034}),    // without its NUL
    };
    for (const Bytes& reply : replies) {
        f.manager->answer(reply);
        EXPECT_EQ(f.system->getCPUtemperature(), String16());
        EXPECT_EQ(f.system->getCustomBootMediaPath(), String16());
    }
}

TEST(SystemCtrl, SendsTheKeyBeforeTheLock) {
    Fixture f;
    f.manager->answer(words({0, 1}));
    EXPECT_TRUE(f.system->setlockkeyIR(true, 5));
    EXPECT_THAT(f.manager->requests(), ElementsAre(words({0x4F, 5, 1})));
}

TEST(SystemCtrl, ReadsAnUnknownRefreshRateAsTheFirst) {
    Fixture f;
    for (const int answer : {7, -1, 3, -5}) {
        f.manager->answer(words({answer}));
        EXPECT_EQ(f.system->getHwcRefreshRate(), android::REFRESH_RATE_0);
    }
    f.manager->answer(words({2}));
    EXPECT_EQ(f.system->getHwcRefreshRate(), android::REFRESH_RATE_2);
}

TEST(SystemCtrl, KeepsTheThreeSensesOfItsSetters) {
    Fixture f;
    f.manager->answer(words({0}));
    EXPECT_TRUE(f.system->setPirDeviceType(1));
    EXPECT_FALSE(f.system->setPirWakeupEnable(true));
    EXPECT_FALSE(f.system->setBootLogoEnable(true));
    f.manager->answer(words({1}));
    EXPECT_FALSE(f.system->setPirDeviceType(1));
    EXPECT_TRUE(f.system->setPirWakeupEnable(true));
    EXPECT_FALSE(f.system->setBootLogoEnable(true));
    f.manager->answer(words({0, 1}));
    EXPECT_TRUE(f.system->setBootLogoEnable(true));
}

TEST(SystemCtrl, ReadsADeadServiceAsTrueWhereAnyAnswerButZeroIs) {
    Fixture f;
    f.manager->answer(words({-1}));
    EXPECT_TRUE(f.system->setDeviceAVBState(true));
    EXPECT_TRUE(f.system->setUsbAdbState(false));
    EXPECT_TRUE(f.system->setCecWakeupEnable(true));
}

TEST(SystemCtrl, KeepsThePresenceSensorsTypeBehindTheDestructor) {
    const auto slotOf = [](auto method) {
        uintptr_t word = 0;
        memcpy(&word, &method, sizeof(word));
        return (word & ~uintptr_t{1}) / sizeof(void*);
    };
    const size_t last = slotOf(&ISystemCtrl::getSarPowerMode);
    EXPECT_EQ(last - slotOf(&ISystemCtrl::setSelinuxMode), 73u);
    EXPECT_EQ(slotOf(&ISystemCtrl::setPirDeviceType) - last, 3u);  // two destructors between
    EXPECT_EQ(slotOf(&ISystemCtrl::getPirDeviceType) - last, 4u);
}

namespace {

struct LoggingCall {
    const char* function;
    const char* message;
    std::function<void(ISystemCtrl&)> make;
};

const LoggingCall kLoggingCalls[] = {
        {"setOtaUpgradeStatus", "setOtaUpgradeStatus status = -3",
         [](auto& s) { s.setOtaUpgradeStatus(-3); }},
        {"setFactoryResetStatus", "setFactoryResetStatus status = 12",
         [](auto& s) { s.setFactoryResetStatus(12); }},
        {"setDebugUartSwitch", "setDebugUartSwitch", [](auto& s) { s.setDebugUartSwitch(1); }},
        {"getDebugUartSwitch", "getDebugUartSwitch", [](auto& s) { s.getDebugUartSwitch(); }},
        {"setAlarmTime", "setAlarmTime", [](auto& s) { s.setAlarmTime(1); }},
        {"setIrInPort", "SetIrInPort:7\n", [](auto& s) { s.setIrInPort(7); }},
        {"getIrInPort", "GetIrInPort\n", [](auto& s) { s.getIrInPort(); }},
        {"getDeviceAVBState", "getDeviceAVBState\n", [](auto& s) { s.getDeviceAVBState(); }},
        {"setDeviceAVBState", "setDeviceAVBState\n", [](auto& s) { s.setDeviceAVBState(true); }},
        {"setUsbAdbState", "setUsbAdbStatus\n", [](auto& s) { s.setUsbAdbState(true); }},
        {"getUsbAdbState", "getUsbAdbStatus\n", [](auto& s) { s.getUsbAdbState(); }},
        {"isPirWakeupEnable", "isPirWakeupEnable\n", [](auto& s) { s.isPirWakeupEnable(); }},
        {"setPirWakeupEnable", "setPirWakeupEnable\n", [](auto& s) { s.setPirWakeupEnable(true); }},
        {"getPirWakeupDelay", "getPirWakeupDelay\n", [](auto& s) { s.getPirWakeupDelay(); }},
        {"setPirWakeupDelay", "setPirWakeupDelay\n", [](auto& s) { s.setPirWakeupDelay(1); }},
        {"isRemoteCtrlWakeupEnable", "isRemoteCtrlWakeupEnable\n",
         [](auto& s) { s.isRemoteCtrlWakeupEnable(); }},
        {"setRemoteCtrlWakeupEnable", "setRemoteCtrlWakeupEnable\n",
         [](auto& s) { s.setRemoteCtrlWakeupEnable(true); }},
        {"setRS232WakeupEnable", "setRS232WakeupEnable\n",
         [](auto& s) { s.setRS232WakeupEnable(true); }},
        {"isRs232WakeupEnable", "isRs232WakeupEnable\n", [](auto& s) { s.isRs232WakeupEnable(); }},
        {"setRtcWakeupEnable", "setRS232WakeupEnable\n",
         [](auto& s) { s.setRtcWakeupEnable(true); }},
        {"isRtcWakeupEnable", "isRs232WakeupEnable\n", [](auto& s) { s.isRtcWakeupEnable(); }},
        {"setUsbPowerEnable", "setUsbPowerEnable\n", [](auto& s) { s.setUsbPowerEnable(true); }},
        {"getUsbPowerEnableSta", "getUsbPowerEnableSta\n",
         [](auto& s) { s.getUsbPowerEnableSta(); }},
        {"setUsbSuspend", "setUsbSuspend\n", [](auto& s) { s.setUsbSuspend(); }},
        {"setUsbResume", "setUsbResume\n", [](auto& s) { s.setUsbResume(); }},
        {"resetBootAnimation", "resetBootAnimation\n", [](auto& s) { s.resetBootAnimation(); }},
        {"setLogoDisplayState", "setLogoDisplayState\n",
         [](auto& s) { s.setLogoDisplayState(true); }},
        {"getLogoDisplayState", "getLogoDisplayState\n", [](auto& s) { s.getLogoDisplayState(); }},
        {"setSTRWakeLockState", "setSTRWakeLockState\n",
         [](auto& s) { s.setSTRWakeLockState(true); }},
        {"getSTRWakeLockState", "getSTRWakeLockState\n", [](auto& s) { s.getSTRWakeLockState(); }},
        {"isSignalPluginWakeup", "isSignalPluginWakeup\n",
         [](auto& s) { s.isSignalPluginWakeup(); }},
        {"setSignalPluginWakeup", "setSignalPluginWakeup\n",
         [](auto& s) { s.setSignalPluginWakeup(true); }},
        {"isCecWakeupEnable", "isCecWakeupEnable\n", [](auto& s) { s.isCecWakeupEnable(); }},
        {"setCecWakeupEnable", "setCecWakeupEnable\n", [](auto& s) { s.setCecWakeupEnable(true); }},
        {"getWakeDelayLinkToID", "getWakeDelayLinkToID\n",
         [](auto& s) { s.getWakeDelayLinkToID(); }},
        {"setWakeDelayLinkToID", "setWakeDelayLinkToID\n",
         [](auto& s) { s.setWakeDelayLinkToID(true); }},
        {"setlockkeyIR", "setlockkeyIR\n", [](auto& s) { s.setlockkeyIR(true, 1); }},
        {"setNfcStatus", "setNfcStatus", [](auto& s) { s.setNfcStatus(1); }},
        {"getNfcStatus", "getNfcStatus", [](auto& s) { s.getNfcStatus(); }},
        {"setBootLogoEnable", "setBootLogoEnable\n", [](auto& s) { s.setBootLogoEnable(true); }},
        {"getBootLogoEnable", "getBootLogoEnable\n", [](auto& s) { s.getBootLogoEnable(); }},
        {"enable_hdmi_switch_tx", "enable_hdmi_switch_tx\n",
         [](auto& s) { s.enable_hdmi_switch_tx(1); }},
        {"setMultiPipUsbMode", "setMultiPipUsbMode\n", [](auto& s) { s.setMultiPipUsbMode(1); }},
        {"getCustomBootMediaPath", "getCustomBootMediaPath\n",
         [](auto& s) { s.getCustomBootMediaPath(); }},
        {"setCustomBootMediaType", "setCustomBootMediaType\n",
         [](auto& s) { s.setCustomBootMediaType(EnumCustomerBootMediaType{1}); }},
        {"keepCpuInPerformance", "keepCpuInPerformance\n",
         [](auto& s) { s.keepCpuInPerformance(1); }},
        {"cancelCpuInPerformance", "cancelCpuInPerformance\n",
         [](auto& s) { s.cancelCpuInPerformance(); }},
        {"keepGpuInPerformance", "keepGpuInPerformance\n",
         [](auto& s) { s.keepGpuInPerformance(1); }},
        {"cancelGpuInPerformance", "cancelGpuInPerformance\n",
         [](auto& s) { s.cancelGpuInPerformance(); }},
        {"getHwcRefreshRate", "getHwcRefreshRate\n", [](auto& s) { s.getHwcRefreshRate(); }},
        {"setHwcRefreshRate", "setHwcRefreshRate\n",
         [](auto& s) { s.setHwcRefreshRate(_EnumRefreshRate_{1}); }},
        {"getPowerMode", "getPowerMode\n", [](auto& s) { s.getPowerMode(); }},
        {"setPowerMode", "setPowerMode\n", [](auto& s) { s.setPowerMode(1); }},
        {"setCecCtlType", "setCecCtlType\n", [](auto& s) { s.setCecCtlType(_EnumCecCtlType_{1}); }},
        {"setSarPowerMode", "setSarPowerMode\n", [](auto& s) { s.setSarPowerMode(1); }},
        {"getSarPowerMode", "getSarPowerMode\n", [](auto& s) { s.getSarPowerMode(); }},
        {"setPirDeviceType", "setPirDeviceType type = 9", [](auto& s) { s.setPirDeviceType(9); }},
        {"getPirDeviceType", "getPirDeviceType", [](auto& s) { s.getPirDeviceType(); }},
};

}  // namespace

TEST(SystemCtrl, LogsOneDebugLineBeforeTheCommand) {
    for (const LoggingCall& call : kLoggingCalls) {
        SCOPED_TRACE(call.function);
        const sp<LogWatchingManager> manager(new LogWatchingManager);
        manager->answer(kEmptyText);
        const sp<SystemCtrl> system(new SystemCtrl(manager));
        call.make(*system);
        EXPECT_EQ(manager->requests().size(), 1u);
        EXPECT_EQ(manager->linesBefore, 1u);
        EXPECT_THAT(manager->log.lines(), ElementsAre(Logged(TARN_LOG_DEBUG, "Zunt@SystemCtrl",
                                                             call.function, call.message)));
    }
}

TEST(SystemCtrl, LogsNothingElsewhere) {
    Fixture f;
    f.manager->answer(kEmptyText);
    LogCapture log;
    const sp<SystemCtrl> another(new SystemCtrl(f.manager));
    ISystemCtrl& s = *f.system;
    s.setTempThreshold(tempType(1), 1);
    s.getTempThreshold(tempType(1));
    s.getOtaUpgradeStatus();
    s.getFactoryResetStatus();
    s.getSystemSetting();
    s.replaceBootLogo(kPath);
    s.resetBootLogo();
    s.replaceBootAnimation(kPath);
    s.replaceBootVideo(kPath);
    s.getCPUtemperature();
    s.isCtsRunning();
    s.setCtsRunning(true);
    s.resetBootVideo();
    s.getAenaState(1);
    s.doDeviceReset();
    s.monitorNfcState(true);
    EXPECT_EQ(f.manager->requests().size(), 16u);
    EXPECT_THAT(log.lines(), IsEmpty());
}
