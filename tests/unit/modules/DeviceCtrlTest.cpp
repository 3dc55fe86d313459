#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include "modules/DeviceCtrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::_EnumUsbPowerStatus;
using android::_EnumUsbSWFollowConfig;
using android::sp;
using android::String16;
using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Not;
using namespace tarn::test;

namespace {

constexpr const char* kTag = "Zunt@DeviceCtrl";

class DeviceCtrl : public testing::Test {
  protected:
    Bytes sent() const { return manager->requests().back(); }

    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::DeviceCtrl> device = new android::DeviceCtrl(manager);
};

TEST_F(DeviceCtrl, DoesNothingWhenItIsCreated) {
    EXPECT_THAT(manager->requests(), IsEmpty());
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(DeviceCtrl, GivesTheFirstIntegerFromAUsbSwitchSetter) {
    manager->answer(words({0, 5, 7}));
    EXPECT_EQ(device->setUsbSwitchForSide(2), 5);
    EXPECT_EQ(device->setUsbSwitchForAll(2), 5);
    EXPECT_EQ(device->setUsbSwitchForTouchIn(2), 5);
    EXPECT_EQ(device->setUsbSwitchForPipTouch(2), 5);
}

TEST_F(DeviceCtrl, GivesTheSecondIntegerFromAUsbSwitchGetter) {
    manager->answer(words({0, 5, 7}));
    EXPECT_EQ(device->getUsbSwitchForSide(), 7);
    EXPECT_EQ(device->getUsbSwitchForAll(), 7);
    EXPECT_EQ(device->getUsbSwitchForTouchIn(), 7);
    EXPECT_EQ(device->getUsbSwitchForPipTouch(), 7);
}

TEST_F(DeviceCtrl, SwitchesThePipTouchPathWithCodesAboveTheDevicePower) {
    device->setUsbSwitchForPipTouch(3);
    EXPECT_EQ(sent(), hex("0e0b0000 03000000"));
    device->getUsbSwitchForPipTouch();
    EXPECT_EQ(sent(), hex("0f0b0000"));
    device->ctrlDevicePower(4, 1);
    EXPECT_EQ(sent(), hex("0c0b0000 04000000 01000000"));
}

TEST_F(DeviceCtrl, LogsABoardNameThatCannotBeReadUnderAnotherCommandsName) {
    manager->answer(Reply(-1).s16("BD-7"));
    EXPECT_EQ(device->getBoardName(), String16());
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(Logged(TARN_LOG_ERROR, kTag, "getBoardName",
                                   "exeCmdSet_Parcel:CMD_AT_CFG_CTRL_READ_WVKEYBOX error!\n")));
}

TEST_F(DeviceCtrl, LogsAModelNameThatCannotBeRead) {
    manager->answer(Reply(-1).s16("M86"));
    EXPECT_EQ(device->getModelName(), String16());
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(Logged(TARN_LOG_ERROR, kTag, "getModelName",
                                   "exeCmdSet_Parcel:CMD_DEVICE_GET_MODEL_NAME error!\n")));
}

TEST_F(DeviceCtrl, ReadsNamesWithoutALineForEveryOtherStatus) {
    for (const int status : {0, 1, -5}) {
        manager->answer(Reply(status).s16("M86"));
        EXPECT_EQ(device->getBoardName(), String16("M86")) << status;
        EXPECT_EQ(device->getModelName(), String16("M86")) << status;
    }
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(DeviceCtrl, LogsTheUsbPowerStatusAfterItWasRead) {
    manager->answer(words({3}));
    EXPECT_EQ(device->getUsbPowerStatus(), 3);
    EXPECT_EQ(manager->linesBefore, 0u);
    manager->answer(words({-1}));
    EXPECT_EQ(device->getUsbPowerStatus(), -1);
    EXPECT_THAT(
            manager->log.lines(),
            ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "getUsbPowerStatus", "getUsbPowerStatus:3"),
                        Logged(TARN_LOG_DEBUG, kTag, "getUsbPowerStatus", "getUsbPowerStatus:-1")));
}

TEST_F(DeviceCtrl, LogsTheUsbPowerStatusBeforeItIsSet) {
    manager->answer(words({0, 1}));
    EXPECT_TRUE(device->setUsbPowerStatus(static_cast<_EnumUsbPowerStatus>(-2)));
    EXPECT_EQ(sent(), hex("100b0000 feffffff"));
    EXPECT_EQ(manager->linesBefore, 1u);
    EXPECT_THAT(manager->log.lines(), ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "setUsbPowerStatus",
                                                         "setUsbPowerStatus:-2")));
}

TEST_F(DeviceCtrl, LogsTheFollowConfigurationAfterItWasRead) {
    manager->answer(words({4}));
    EXPECT_EQ(device->getUsbSwFollowConfig(), 4);
    EXPECT_EQ(manager->linesBefore, 0u);
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "getUsbSwFollowConfig",
                                   "getUsbSwFollowConfig:4")));
}

TEST_F(DeviceCtrl, LogsTheFollowConfigurationBeforeItIsSetEvenWhenThatFails) {
    manager->answer(words({-1}));
    EXPECT_FALSE(device->setUsbSwFollowConfig(static_cast<_EnumUsbSWFollowConfig>(2)));
    EXPECT_EQ(sent(), hex("170b0000 02000000"));
    EXPECT_EQ(manager->linesBefore, 1u);
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "setUsbSwFollowConfig",
                                   "setUsbSwFollowConfig:2")));
}

TEST_F(DeviceCtrl, KeepsAnNfcMessageBeyondAscii) {
    manager->answer(words({0, 1}));
    EXPECT_TRUE(device->setNfcTagMsg(String16("\xc3\xa4\xf0\x9f\x98\x80")));
    EXPECT_EQ(sent(), hex("120b0000 03000000 e4003dd8 00de0000"));
    manager->answer(Reply(0).s16("\xc3\xa4\xf0\x9f\x98\x80"));
    EXPECT_EQ(device->getNfcTagMsg(), String16("\xc3\xa4\xf0\x9f\x98\x80"));
}

TEST_F(DeviceCtrl, ReturnsMinusOneFalseOrNothingWhenTheServiceIsDead) {
    manager->answer(words({-1, 5, 7}));
    EXPECT_EQ(device->getDeviceList(), -1);
    EXPECT_EQ(device->setUsbSwitchForSide(2), -1);
    EXPECT_EQ(device->getUsbSwitchForSide(), -1);
    EXPECT_EQ(device->ctrlDevicePower(1, 2), -1);
    EXPECT_FALSE(device->setNfcTagMsg(String16("tag")));
    EXPECT_EQ(device->getNfcTagMsg(), String16());
}

TEST_F(DeviceCtrl, LogsNothingElse) {
    manager->answer(words({-1}));
    device->getDeviceList();
    device->getSecondDeviceList();
    device->getThirdDeviceList();
    device->setUsbSwitchForSide(2);
    device->getUsbSwitchForSide();
    device->ctrlDevicePower(1, 2);
    device->getNfcTagMsg();
    device->setNfcTagMsg(String16("tag"));
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(DeviceCtrl, ReadsNothingFromATextThatClaimsMoreThanTheReplyHolds) {
    manager->answer(words({0, 0x7fffffff, 0x00410041}));
    EXPECT_EQ(device->getBoardName(), String16());
    EXPECT_EQ(device->getModelName(), String16());
    EXPECT_EQ(device->getNfcTagMsg(), String16());
    EXPECT_THAT(manager->log.lines(), Not(Contains(Field(&LogLine::tag, kTag))));
}

}  // namespace
