#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "modules/BurnMacCtrl.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using testing::ElementsAre;
using namespace tarn::test;

TEST(BurnMacCtrl, SendsALengthOfMinusOneForNoBytes) {
    const sp<RecordingManager> manager = new RecordingManager;
    const sp<android::BurnMacCtrl> macs = new android::BurnMacCtrl(manager);
    macs->setBurnMac(static_cast<android::_EnumBurnMacType>(2), nullptr, 6);
    EXPECT_THAT(manager->requests(), ElementsAre(hex("01350000 02000000 ffffffff")));
}
