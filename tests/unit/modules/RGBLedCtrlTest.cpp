#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include "modules/RGBLedCtrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::sp;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

constexpr const char* kTag = "Zunt@RGBLedCtrl";

class RGBLedCtrl : public testing::Test {
  protected:
    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::RGBLedCtrl> leds = new android::RGBLedCtrl(manager);
};

TEST_F(RGBLedCtrl, ReadsTheVoiceAssistantStateWhateverTheStatusIs) {
    manager->answer(words({0, 4}));
    EXPECT_EQ(leds->getVaLedState(), 4);
    manager->answer(words({-5, -2}));
    EXPECT_EQ(leds->getVaLedState(), -2);
    EXPECT_THAT(
            manager->log.lines(),
            ElementsAre(
                    Logged(TARN_LOG_DEBUG, kTag, "getVaLedState", "RGBLedCtrl::getVaLedState"),
                    Logged(TARN_LOG_DEBUG, kTag, "getVaLedState", "RGBLedCtrl::getVaLedState")));
}

TEST_F(RGBLedCtrl, ReturnsZeroAndLogsItWhenTheReplyCarriesNoVoiceAssistantState) {
    for (const Bytes& reply : {words({0}), words({5}), words({-1, 4}), Bytes()}) {
        manager->answer(reply);
        manager->log.clear();
        EXPECT_EQ(leds->getVaLedState(), 0);
        EXPECT_EQ(manager->linesBefore, 1u);
        EXPECT_THAT(manager->log.lines(), ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "getVaLedState",
                                                             "RGBLedCtrl::getVaLedState"),
                                                      Logged(TARN_LOG_DEBUG, kTag, "getVaLedState",
                                                             "RGBLedCtrl::getVaLedState failed")));
    }
}

TEST_F(RGBLedCtrl, LogsTheInfraredInputBeforeItIsShown) {
    leds->setIRInputState();
    EXPECT_EQ(manager->linesBefore, 1u);
    EXPECT_THAT(manager->log.lines(), ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "setIRInputState",
                                                         "csclog setIRInputState")));
}

TEST_F(RGBLedCtrl, LogsNothingElse) {
    manager->answer(words({-1}));
    leds->setPowerState(1);
    leds->setBluetoothState(1);
    leds->setMicrophoneState(1);
    leds->setPowerLedEnableState(1);
    leds->setLedOtaState(1);
    leds->setDiagnosisState(1);
    leds->setPowerStandbyState(1);
    leds->setLedOn(1);
    leds->setLedOff(1);
    leds->setVaLedState(static_cast<android::_EnumVaLedState_>(1));
    EXPECT_EQ(manager->requests().size(), 10u);
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(RGBLedCtrl, ReturnsMinusOneOrFalseWhenTheServiceIsDead) {
    manager->answer(words({-1, 1}));
    EXPECT_EQ(leds->setIRInputState(), -1);
    EXPECT_EQ(leds->setPowerStandbyState(1), -1);
    EXPECT_FALSE(leds->setLedOff(1));
    EXPECT_FALSE(leds->setVaLedState(static_cast<android::_EnumVaLedState_>(1)));
}

}  // namespace
