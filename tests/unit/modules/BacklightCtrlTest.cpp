#include <gtest/gtest.h>

#include "modules/BacklightCtrl.h"
#include "tests/support/LogCapture.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

class BacklightCtrl : public testing::Test {
  protected:
    Bytes sent() const { return manager->requests().back(); }

    sp<RecordingManager> manager = new RecordingManager;
    sp<android::BacklightCtrl> backlight = new android::BacklightCtrl(manager);
};

TEST_F(BacklightCtrl, SetsTheLowestBrightnessFarFromWhereItIsRead) {
    backlight->setScreenMinBrightness(10);
    EXPECT_EQ(sent(), hex("13130000 0a000000"));
    backlight->getScreenMinBrightness();
    EXPECT_EQ(sent(), hex("05130000"));
}

TEST_F(BacklightCtrl, SetsTheHighestBrightnessUnderTheLowerCode) {
    backlight->setScreenMaxBrightness(90);
    EXPECT_EQ(sent(), hex("03130000 5a000000"));
    backlight->getScreenMaxBrightness();
    EXPECT_EQ(sent(), hex("04130000"));
}

TEST_F(BacklightCtrl, ReturnsMinusOneOrFalseWhenTheServiceIsDead) {
    manager->answer(words({-1, 1}));
    EXPECT_EQ(backlight->getScreenBrightness(), -1);
    EXPECT_EQ(backlight->setScreenRealBrightness(5), -1);
    EXPECT_FALSE(backlight->getMaxBrightnessSetEnable());
}

TEST_F(BacklightCtrl, LogsNothing) {
    LogCapture log;
    manager->answer(words({-1}));
    backlight->setScreenBrightness(5);
    backlight->getMaxBrightnessSetEnable();
    EXPECT_THAT(log.lines(), IsEmpty());
}

}  // namespace
