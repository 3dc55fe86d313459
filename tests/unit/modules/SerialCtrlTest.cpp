#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "modules/SerialCtrl.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using testing::ElementsAre;
using namespace tarn::test;

TEST(SerialCtrl, LeavesTheCallersDataAlone) {
    const sp<android::SerialCtrl> serial = new android::SerialCtrl(new RecordingManager);
    std::vector<int> data{5, -6};
    serial->SendSerialData(static_cast<android::_EnumSerialDevice_>(2), data);
    EXPECT_THAT(data, ElementsAre(5, -6));
}
