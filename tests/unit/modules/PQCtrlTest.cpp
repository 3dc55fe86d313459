#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <climits>
#include <cstddef>

#include "modules/PQCtrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::_EnumAspect_;
using android::_EnumHdcpVersion;
using android::_TarnEnumInputSourceId_;
using android::PresetColorTempValues;
using android::sp;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

constexpr const char* kTag = "Zunt@PQCtrl";

class PQCtrl : public testing::Test {
  protected:
    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::PQCtrl> pq = new android::PQCtrl(manager);
    const LogCapture& log = manager->log;
};

void expectValues(const PresetColorTempValues& values, int first, int second, int third) {
    EXPECT_EQ(values.first, first);
    EXPECT_EQ(values.second, second);
    EXPECT_EQ(values.third, third);
}

TEST_F(PQCtrl, GivesTheSourceBackWhateverTheServiceAnswersToHdcpVersion) {
    for (const Bytes& reply : {words({0}), words({2}), words({-1}), words({-5}), Bytes()}) {
        manager->answer(reply);
        for (const int source : {0, 1, 23, -1, INT_MAX, INT_MIN}) {
            EXPECT_EQ(pq->getHDCPVersion(static_cast<_TarnEnumInputSourceId_>(source)), source);
            EXPECT_EQ(manager->requests().back(), hex("901a0000"));
        }
    }
}

TEST_F(PQCtrl, SendsSourceAndVersionWhenItSetsTheHdcpVersion) {
    manager->answer(Reply(0).boolean(true));
    EXPECT_TRUE(pq->setHDCPVersion(static_cast<_TarnEnumInputSourceId_>(23),
                                   static_cast<_EnumHdcpVersion>(2)));
    EXPECT_THAT(manager->requests(), ElementsAre(hex("8f1a0000 17000000 02000000")));
}

TEST_F(PQCtrl, ReadsTheEyeCareIndexBehindAnyStatusThatIsNoFailure) {
    manager->answer(words({0, 7}));
    EXPECT_EQ(pq->getEyePQModeIndexToSave(), 7);
    manager->answer(words({-5, 3}));
    EXPECT_EQ(pq->getEyePQModeIndexToSave(), 3);
    manager->answer(words({0, -1}));
    EXPECT_EQ(pq->getEyePQModeIndexToSave(), -1);
}

TEST_F(PQCtrl, GivesEyeCareIndexThreeWhenTheServiceIsDead) {
    manager->answer(words({-1, 7}));
    EXPECT_EQ(pq->getEyePQModeIndexToSave(), 3);
}

TEST_F(PQCtrl, ReadsAnEyeCareIndexOfZeroFromAShortOrEmptyReply) {
    manager->answer(words({0}));
    EXPECT_EQ(pq->getEyePQModeIndexToSave(), 0);
    manager->answer(Bytes());
    EXPECT_EQ(pq->getEyePQModeIndexToSave(), 0);
}

TEST_F(PQCtrl, LogsTheBeginBeforeAndTheSuccessAfterAskingForTheEyeCareIndex) {
    manager->answer(words({0, 7}));
    pq->getEyePQModeIndexToSave();
    EXPECT_THAT(log.lines(), ElementsAre(Logged(TARN_LOG_WARN, kTag, "getEyePQModeIndexToSave",
                                                "getEyePQModeIndexToSave begin"),
                                         Logged(TARN_LOG_WARN, kTag, "getEyePQModeIndexToSave",
                                                "getEyePQModeIndexToSave cmd ok")));
    EXPECT_EQ(manager->linesBefore, 1u);
}

TEST_F(PQCtrl, LogsOnlyTheBeginOfTheEyeCareIndexWhenTheServiceIsDead) {
    manager->answer(words({-1, 7}));
    pq->getEyePQModeIndexToSave();
    EXPECT_THAT(log.lines(), ElementsAre(Logged(TARN_LOG_WARN, kTag, "getEyePQModeIndexToSave",
                                                "getEyePQModeIndexToSave begin")));
}

TEST_F(PQCtrl, SkipsTheFirstNumberOfAPreset) {
    manager->answer(words({0, 9, 10, 20, 30}));
    expectValues(pq->getPresetColorTempMode(4, -2), 10, 20, 30);
    EXPECT_THAT(manager->requests(), ElementsAre(hex("221a0000 04000000 feffffff")));
    EXPECT_THAT(log.lines(), ElementsAre(Logged(TARN_LOG_ERROR, kTag, "getPresetColorTempMode",
                                                "getPresetColorTempMode 9 10 20 30\n")));
}

TEST_F(PQCtrl, GivesAZeroedPresetWhenTheServiceIsDead) {
    manager->answer(words({-1, 9, 10, 20, 30}));
    expectValues(pq->getPresetColorTempMode(4, 5), 0, 0, 0);
    EXPECT_THAT(log.lines(), ElementsAre(Logged(TARN_LOG_ERROR, kTag, "getPresetColorTempMode",
                                                "getPresetColorTempMode 0 0 0 0\n")));
}

TEST_F(PQCtrl, ReadsZerosForWhatAPresetsReplyLacks) {
    manager->answer(words({0, 9, 10}));
    expectValues(pq->getPresetColorTempMode(4, 5), 10, 0, 0);
    manager->answer(Bytes());
    expectValues(pq->getPresetColorTempMode(4, 5), 0, 0, 0);
}

TEST_F(PQCtrl, PutsFiveIntegersIntoAPreset) {
    manager->answer(words({77}));
    EXPECT_EQ(pq->setPresetColorTempMode(1, 2, 3, 4, 5), 77);
    EXPECT_THAT(manager->requests(),
                ElementsAre(hex("211a0000 01000000 02000000 03000000 04000000 05000000")));
}

TEST_F(PQCtrl, SwitchesDynamicContrastWithOne) {
    pq->setDCREnable(true);
    EXPECT_THAT(manager->requests(), ElementsAre(hex("281a0000 01000000")));
}

TEST_F(PQCtrl, PassesTheDisplayZoneSwitchesUnchanged) {
    pq->setVideoDisplayZoneTilingEnable(-7);
    pq->setVideoDisplayZoneCompEnable(300);
    EXPECT_THAT(manager->requests(),
                ElementsAre(hex("8c1a0000 f9ffffff"), hex("8e1a0000 2c010000")));
}

TEST_F(PQCtrl, ReadsEveryStatusButZeroAsAnAspectModeThatWasSet) {
    const auto mode = static_cast<_EnumAspect_>(6);
    manager->answer(words({0}));
    EXPECT_FALSE(pq->setAspectMode(mode));
    for (const int status : {1, -1, -5}) {
        manager->answer(words({status}));
        EXPECT_TRUE(pq->setAspectMode(mode)) << status;
    }
}

TEST_F(PQCtrl, LogsNothingElse) {
    manager->answer(words({-1}));
    const auto source = static_cast<_TarnEnumInputSourceId_>(1);
    pq->getDCREnable();
    pq->getDcrMaxBacklight();
    pq->getDcrMinBacklight();
    pq->getDcrStepTime();
    pq->getDcrStepValue();
    pq->setDCREnable(true);
    pq->setDcrMaxBacklight(1);
    pq->setDcrMinBacklight(1);
    pq->setDcrStepTime(1);
    pq->setDcrStepValue(1);
    pq->getDBCEnable();
    pq->setDBCEnable(true);
    pq->getPQRGain();
    pq->setPQRGain(1);
    pq->getPQGGain();
    pq->setPQGGain(1);
    pq->getPQBGain();
    pq->setPQBGain(1);
    pq->getColorTemp();
    pq->setColorTemp(1);
    pq->getSaturation();
    pq->setSaturation(1);
    pq->getSharpness();
    pq->setSharpness(1);
    pq->getContrast();
    pq->setContrast(1);
    pq->getHue();
    pq->setHue(1);
    pq->getPictureMode();
    pq->setPictureMode(1);
    pq->getGammaMode();
    pq->setGammaMode(1);
    pq->getBrightness();
    pq->setBrightness(1);
    pq->getPQRGainWithoutSave();
    pq->setPQRGainWithoutSave(1);
    pq->getPQGGainWithoutSave();
    pq->setPQGGainWithoutSave(1);
    pq->getPQBGainWithoutSave();
    pq->setPQBGainWithoutSave(1);
    pq->setPresetColorTempMode(1, 2, 3, 4, 5);
    pq->resetWhiteBalance();
    pq->getVideoDisplayZoneTilingEnable();
    pq->setVideoDisplayZoneTilingEnable(1);
    pq->getVideoDisplayZoneCompEnable();
    pq->setVideoDisplayZoneCompEnable(1);
    pq->getHDCPVersion(source);
    pq->setHDCPVersion(source, static_cast<_EnumHdcpVersion>(1));
    pq->getAspectMode();
    pq->setAspectMode(static_cast<_EnumAspect_>(1));
    EXPECT_EQ(manager->requests().size(), 50u);
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST(PresetColorTempValues, AreThreeIntegersThatStartAtZero) {
    expectValues(PresetColorTempValues(), 0, 0, 0);
    EXPECT_EQ(sizeof(PresetColorTempValues), 12u);
    EXPECT_EQ(offsetof(PresetColorTempValues, first), 0u);
    EXPECT_EQ(offsetof(PresetColorTempValues, second), 4u);
    EXPECT_EQ(offsetof(PresetColorTempValues, third), 8u);
}

}  // namespace
