#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include "modules/LightEffectCtrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::_EnumLightDeviceType;
using android::_EnumLightEffectMode;
using android::sp;
using testing::ElementsAre;
using namespace tarn::test;

namespace {

class LightEffectCtrl : public testing::Test {
  protected:
    bool setMode(int device, int mode) {
        return lights->setLightEffectMode(static_cast<_EnumLightDeviceType>(device),
                                          static_cast<_EnumLightEffectMode>(mode));
    }

    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::LightEffectCtrl> lights = new android::LightEffectCtrl(manager);
};

TEST_F(LightEffectCtrl, SendsTheDeviceBeforeItsMode) {
    manager->answer(words({0, 1}));
    EXPECT_TRUE(setMode(5, 6));
    EXPECT_EQ(manager->requests().back(), hex("00440000 05000000 06000000"));
}

TEST_F(LightEffectCtrl, ReturnsFalseWhenTheServiceIsDeadOrSaysNo) {
    manager->answer(words({-1, 1}));
    EXPECT_FALSE(setMode(1, 2));
    manager->answer(words({3, 0}));
    EXPECT_FALSE(setMode(1, 2));
}

TEST_F(LightEffectCtrl, LogsItsEntryBeforeTheCommandAndNothingElse) {
    manager->answer(words({-1}));
    setMode(1, 2);
    EXPECT_EQ(manager->linesBefore, 1u);
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(Logged(TARN_LOG_DEBUG, "Zunt@LightEffectCtrl", "setLightEffectMode",
                                   "[setLightEffectMode] ++ \n")));
}

}  // namespace
