#include <gtest/gtest.h>

#include "modules/ProjectId.h"
#include "tests/support/RecordingManager.h"

using android::Parcel;
using android::sp;
using namespace tarn::test;

namespace {

class ProjectId : public testing::Test {
  protected:
    ProjectId() { cfgs.writeInt32(77); }

    sp<RecordingManager> manager = new RecordingManager;
    sp<android::ProjectId> projectId = new android::ProjectId(manager);
    Parcel cfgs;
};

TEST_F(ProjectId, ReplacesTheCallersParcelByTheConfigurationSetFromItsStart) {
    cfgs.writeInt32(78);
    manager->answer(words({0, 2, -40}));
    EXPECT_EQ(projectId->getProjectIdPqBcshCfgs(&cfgs), 0);
    EXPECT_EQ(cfgs.dataSize(), 8u);
    EXPECT_EQ(cfgs.readInt32(), 2);
    EXPECT_EQ(cfgs.readInt32(), -40);
}

TEST_F(ProjectId, LeavesTheCallersParcelAloneWhenTheCommandFailedOrNothingCame) {
    manager->answer(words({-1, 5}));
    EXPECT_EQ(projectId->getProjectIdDbcCfgs(&cfgs), -1);
    manager->answer(Bytes{});
    EXPECT_EQ(projectId->getProjectIdDbcCfgs(&cfgs), 0);
    cfgs.setDataPosition(0);
    EXPECT_EQ(cfgs.readInt32(), 77);
    EXPECT_EQ(cfgs.dataSize(), 4u);
}

}  // namespace
