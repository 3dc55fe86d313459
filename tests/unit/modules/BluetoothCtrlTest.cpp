#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "modules/BluetoothCtrl.h"
#include "tests/support/LogWatchingManager.h"

using android::sp;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

class BluetoothCtrl : public testing::Test {
  protected:
    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::BluetoothCtrl> bluetooth = new android::BluetoothCtrl(manager);
};

TEST_F(BluetoothCtrl, SendsNothingWhenItIsCreated) {
    EXPECT_THAT(manager->requests(), IsEmpty());
}

TEST_F(BluetoothCtrl, LogsNothing) {
    for (const Bytes& reply : {words({0, 1}), words({-1}), Bytes()}) {
        manager->answer(reply);
        bluetooth->isBleWakeup();
        bluetooth->setBleWakeup(true);
    }
    EXPECT_THAT(manager->log.lines(), IsEmpty());
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
