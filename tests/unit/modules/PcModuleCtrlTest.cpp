#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "modules/PcModuleCtrl.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using testing::IsEmpty;
using namespace tarn::test;

TEST(PcModuleCtrl, NeverLooksAtTheSerialData) {
    const sp<RecordingManager> manager = new RecordingManager;
    const sp<android::PcModuleCtrl> module = new android::PcModuleCtrl(manager);
    EXPECT_EQ(module->sendSerialData(nullptr, 10), 0);
    EXPECT_EQ(module->sendSerialData(nullptr, -1), 0);
    EXPECT_THAT(manager->requests(), IsEmpty());
}
