#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "modules/SerialCtrl.h"
#include "tests/support/LogCapture.h"
#include "tests/support/RecordingManager.h"

using android::_EnumSerialDevice_;
using android::sp;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

constexpr auto kDevice = static_cast<_EnumSerialDevice_>(2);

class SerialCtrl : public testing::Test {
  protected:
    sp<RecordingManager> manager = new RecordingManager;
    sp<android::SerialCtrl> serial = new android::SerialCtrl(manager);
    std::vector<int> data{5, -6};
};

TEST_F(SerialCtrl, ReportsSuccessAsTrueForSwitchesAndData) {
    manager->answer(words({0}));
    EXPECT_TRUE(serial->SetSerialSwitch(kDevice, true, 3));
    EXPECT_TRUE(serial->SendSerialData(kDevice, data));
    manager->answer(words({-1}));
    EXPECT_FALSE(serial->SetSerialSwitch(kDevice, true, 3));
    EXPECT_FALSE(serial->SendSerialData(kDevice, data));
}

TEST_F(SerialCtrl, ReportsSuccessAsFalseForTheAutoTestAndTheDeviceId) {
    manager->answer(words({0}));
    EXPECT_FALSE(serial->SetSerialParamToAutoTest(kDevice));
    EXPECT_FALSE(serial->setSerialDeviceId(kDevice, 3));
    manager->answer(words({-1}));
    EXPECT_TRUE(serial->SetSerialParamToAutoTest(kDevice));
    EXPECT_TRUE(serial->setSerialDeviceId(kDevice, 3));
}

TEST_F(SerialCtrl, ReadsNoSettersReply) {
    manager->answer(words({0, 0}));
    EXPECT_TRUE(serial->SetSerialSwitch(kDevice, true, 3));
    manager->answer(words({0, 1}));
    EXPECT_FALSE(serial->setSerialDeviceId(kDevice, 3));
}

TEST_F(SerialCtrl, SendsTheDeviceAndACountOfZeroForNoData) {
    std::vector<int> none;
    EXPECT_TRUE(serial->SendSerialData(kDevice, none));
    EXPECT_THAT(manager->requests(), ElementsAre(words({0x1102, 2, 0})));
}

TEST_F(SerialCtrl, SendsTheDataInItsOrderAndLeavesItAlone) {
    serial->SendSerialData(kDevice, data);
    EXPECT_THAT(manager->requests(), ElementsAre(words({0x1102, 2, 2, 5, -6})));
    EXPECT_THAT(data, ElementsAre(5, -6));
}

TEST_F(SerialCtrl, GivesMinusOneForTheDeviceIdWhenTheServiceIsDead) {
    manager->answer(words({-1, 7}));
    EXPECT_EQ(serial->getSerialDeviceId(kDevice), -1);
}

TEST_F(SerialCtrl, LogsNothing) {
    LogCapture log;
    manager->answer(words({-1}));
    const sp<android::SerialCtrl> another = new android::SerialCtrl(manager);
    another->SetSerialSwitch(kDevice, true, 3);
    another->SendSerialData(kDevice, data);
    another->SetSerialParamToAutoTest(kDevice);
    another->getRS232Baudrate();
    another->getRS232Port();
    another->setSerialDeviceId(kDevice, 3);
    another->getSerialDeviceId(kDevice);
    EXPECT_THAT(log.messages(), IsEmpty());
}

}  // namespace
