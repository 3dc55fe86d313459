#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <string>

#include "modules/CameraCtrl.h"
#include "modules/FirmwareRecords.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::EntityFwCamera;
using android::Parcel;
using android::sp;
using android::String16;
using android::TarnCameraInfo;
using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Matcher;
using namespace tarn::test;

namespace {

Matcher<const LogLine&> pinned(int priority, int line, const char* function,
                               const std::string& message) {
    return AllOf(Logged(priority, "Zunt@CameraCtrl", function, message),
                 Field(&LogLine::line, line));
}

class CameraCtrl : public testing::Test {
  protected:
    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::CameraCtrl> cameras = new android::CameraCtrl(manager);
};

TEST_F(CameraCtrl, LogsTheNameOfTheQueryThatFailed) {
    manager->answer(words({-1, 1, 97}));
    TarnCameraInfo info;
    EXPECT_EQ(cameras->getCameraDeviceName(0), String16());
    EXPECT_FALSE(cameras->getCameraDeviceInfo(0, info));
    EXPECT_EQ(cameras->getCameraDeviceSn(0), String16());
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(pinned(TARN_LOG_ERROR, 40, "getCameraDeviceName",
                                   "exeCmdSet_Parcel:CMD_CAMERA_GET_DEVICENAME error!\n"),
                            pinned(TARN_LOG_ERROR, 54, "getCameraDeviceInfo",
                                   "exeCmdSet_Parcel:CMD_CAMERA_GET_DEVICE_INFO error!\n"),
                            pinned(TARN_LOG_ERROR, 133, "getCameraDeviceSn",
                                   "exeCmdSet_Parcel:CMD_CAMERA_GET_DEVICESN error!\n")));
}

TEST_F(CameraCtrl, LogsNothingWhenQueriesSucceedOrTheMainSwitchIsUsed) {
    TarnCameraInfo info;
    cameras->getCameraDeviceName(0);
    cameras->getCameraDeviceInfo(0, info);
    cameras->getCameraDeviceSn(0);
    manager->answer(words({-1}));
    cameras->getCameraEnable();
    cameras->setCameraEnable(true);
    cameras->setCameraIdDeviceMap("a", "b");
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(CameraCtrl, SkipsTheFirstWordOfACamerasInformation) {
    manager->answer(Reply(0).i32(7).s16("cam\xC3\xBC").i32(1920).i32(1080));
    TarnCameraInfo info;
    EXPECT_TRUE(cameras->getCameraDeviceInfo(0, info));
    EXPECT_EQ(info.text0, "cam\xC3\xBC");
    EXPECT_EQ(info.value0, 1920);
    EXPECT_EQ(info.value1, 1080);
}

TEST_F(CameraCtrl, LeavesTheInformationAloneOnFailure) {
    manager->answer(words({-1, 7, 0, 0, 1, 2}));
    TarnCameraInfo info{"former", 3, 4};
    EXPECT_FALSE(cameras->getCameraDeviceInfo(0, info));
    EXPECT_EQ(info.text0, "former");
    EXPECT_EQ(info.value0, 3);
    EXPECT_EQ(info.value1, 4);
}

TEST_F(CameraCtrl, ClearsTheInformationOnAnEmptyReply) {
    TarnCameraInfo info{"former", 3, 4};
    EXPECT_TRUE(cameras->getCameraDeviceInfo(0, info));
    EXPECT_EQ(info.text0, "");
    EXPECT_EQ(info.value0, 0);
    EXPECT_EQ(info.value1, 0);
}

TEST_F(CameraCtrl, LogsACamerasTypeBeforeItsCommand) {
    cameras->isCameraEnabled(-3);
    EXPECT_EQ(manager->linesBefore, 1u);
    cameras->setCameraEnabled(4, true);
    EXPECT_EQ(manager->linesBefore, 2u);
    cameras->setCameraEnabled(5, false);
    EXPECT_EQ(manager->linesBefore, 3u);
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(pinned(TARN_LOG_DEBUG, 66, "isCameraEnabled",
                                   "[isCameraEnabled] fwCameraType=-3 \n"),
                            pinned(TARN_LOG_DEBUG, 72, "setCameraEnabled",
                                   "[setCameraEnabled] fwCameraType=4; enabled=1 \n"),
                            pinned(TARN_LOG_DEBUG, 72, "setCameraEnabled",
                                   "[setCameraEnabled] fwCameraType=5; enabled=0 \n")));
}

TEST_F(CameraCtrl, EmptiesTheListWhateverTheServiceAnswers) {
    const Bytes withARecord = Reply(0).boolean(true).i32(1).i32(2).i32(3).i32(4).i32(5).bytes();
    const Bytes replies[] = {
            withARecord,    words({0, 1}), words({0, 0}), words({-5, 1}),
            words({-1, 1}), words({0}),    Bytes(),       words({0, 0x7fffffff, 0x7fffffff})};
    for (const Bytes& reply : replies) {
        manager->answer(reply);
        std::vector<EntityFwCamera> list(2);
        EXPECT_TRUE(cameras->getFwCameraList(&list));
        EXPECT_THAT(list, IsEmpty());
        EXPECT_EQ(manager->requests().back(), hex("071c0000"));
    }
}

TEST_F(CameraCtrl, LogsTheListsEntryOnlyWhenTheServiceSaysYes) {
    manager->answer(words({0, 1}));
    std::vector<EntityFwCamera> list;
    cameras->getFwCameraList(&list);
    EXPECT_EQ(manager->linesBefore, 1u);
    EXPECT_THAT(manager->log.lines(), ElementsAre(pinned(TARN_LOG_DEBUG, 78, "getFwCameraList",
                                                         "[getFwCameraList] ++ \n")));
}

TEST_F(CameraCtrl, LogsAnErrorWhenTheServiceSaysNoOrIsDead) {
    std::vector<EntityFwCamera> list;
    for (const Bytes& reply : {words({0, 0}), words({-1})}) {
        manager->answer(reply);
        manager->log.clear();
        cameras->getFwCameraList(&list);
        EXPECT_THAT(manager->log.lines(),
                    ElementsAre(pinned(TARN_LOG_DEBUG, 78, "getFwCameraList",
                                       "[getFwCameraList] ++ \n"),
                                pinned(TARN_LOG_ERROR, 106, "getFwCameraList",
                                       "[getFwCameraList]  fail, ret = 0 \n")));
    }
}

TEST_F(CameraCtrl, ReportsAMappingAsDoneWhenTheServiceAnswersFalse) {
    manager->answer(words({0, 0}));
    EXPECT_TRUE(cameras->setCameraIdDeviceMap("id", "d"));
    EXPECT_EQ(manager->requests().back(),
              hex("081c0000 02000000 69006400 00000000 01000000 64000000"));
    manager->answer(words({0, 1}));
    EXPECT_FALSE(cameras->setCameraIdDeviceMap("id", "d"));
    manager->answer(words({-1, 0}));
    EXPECT_FALSE(cameras->setCameraIdDeviceMap("id", "d"));
}

// The last flag varies, so that each of the three has values of its own.
void expectCamera(const EntityFwCamera& camera, bool lastFlag) {
    EXPECT_EQ(camera.value0, 1);
    EXPECT_EQ(camera.value1, -2);
    EXPECT_EQ(camera.value2, 3);
    EXPECT_EQ(camera.value3, -4);
    EXPECT_EQ(camera.text0, "a");
    EXPECT_TRUE(camera.flag0);
    EXPECT_EQ(camera.text1, "b\xC3\xBC");
    EXPECT_FALSE(camera.flag1);
    EXPECT_EQ(camera.text2, "c");
    EXPECT_EQ(camera.text3, "dd");
    EXPECT_EQ(camera.text4, "eee");
    EXPECT_EQ(camera.flag2, lastFlag);
}

TEST(CameraRecords, ReadACamerasFirmwareFieldByField) {
    for (const bool lastFlag : {false, true}) {
        Parcel reply;
        for (const int32_t value : {1, -2, 3, -4}) reply.writeInt32(value);
        reply.writeString16(String16("a"));
        reply.writeBool(true);
        reply.writeString16(String16("b\xC3\xBC"));
        reply.writeBool(false);
        for (const char* text : {"c", "dd", "eee"}) reply.writeString16(String16(text));
        reply.writeBool(lastFlag);
        reply.setDataPosition(0);
        expectCamera(android::readFirmware<EntityFwCamera>(reply), lastFlag);
        EXPECT_EQ(reply.dataAvail(), 0u);
    }
}

TEST(CameraRecords, HoldTheFieldsOfACamerasFirmwareInTheirOrder) {
    for (const bool lastFlag : {false, true}) {
        expectCamera({1, -2, 3, -4, "a", true, "b\xC3\xBC", false, "c", "dd", "eee", lastFlag},
                     lastFlag);
    }
}

TEST(CameraRecords, HoldTheFieldsOfACamerasInformationInTheirOrder) {
    const TarnCameraInfo info{"a", 1, 2};
    EXPECT_EQ(info.text0, "a");
    EXPECT_EQ(info.value0, 1);
    EXPECT_EQ(info.value1, 2);
}

}  // namespace
