#include <gtest/gtest.h>

#include "modules/CameraCtrl.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using android::TarnCameraInfo;
using namespace tarn::test;

namespace {

class CameraCtrl : public testing::Test {
  protected:
    sp<RecordingManager> manager = new RecordingManager;
    sp<android::CameraCtrl> cameras = new android::CameraCtrl(manager);
    TarnCameraInfo info{"former", 3, 4};
};

TEST_F(CameraCtrl, LeavesTheInformationAloneOnFailure) {
    manager->answer(words({-1, 7, 0, 0, 1, 2}));
    EXPECT_FALSE(cameras->getCameraDeviceInfo(0, info));
    EXPECT_EQ(info.text0, "former");
    EXPECT_EQ(info.value0, 3);
    EXPECT_EQ(info.value1, 4);
}

TEST_F(CameraCtrl, ClearsTheInformationOnAnEmptyReply) {
    EXPECT_TRUE(cameras->getCameraDeviceInfo(0, info));
    EXPECT_EQ(info.text0, "");
    EXPECT_EQ(info.value0, 0);
    EXPECT_EQ(info.value1, 0);
}

}  // namespace
