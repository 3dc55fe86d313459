#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "modules/BluetoothCtrl.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

class BluetoothCtrl : public testing::Test {
  protected:
    sp<RecordingManager> manager = new RecordingManager;
    sp<android::BluetoothCtrl> bluetooth = new android::BluetoothCtrl(manager);
};

TEST_F(BluetoothCtrl, SendsNothingWhenItIsCreated) {
    EXPECT_THAT(manager->requests(), IsEmpty());
}

TEST_F(BluetoothCtrl, ReadsTheBooleanAndNotTheStatus) {
    manager->answer(words({1, 0}));
    EXPECT_FALSE(bluetooth->isBleWakeup());
    EXPECT_FALSE(bluetooth->setBleWakeup(true));
    manager->answer(words({-5, 1}));
    EXPECT_TRUE(bluetooth->isBleWakeup());
    EXPECT_TRUE(bluetooth->setBleWakeup(false));
}

TEST_F(BluetoothCtrl, ReturnsFalseWhenTheServiceIsDead) {
    manager->answer(words({-1, 1}));
    EXPECT_FALSE(bluetooth->isBleWakeup());
    EXPECT_FALSE(bluetooth->setBleWakeup(true));
}

}  // namespace
