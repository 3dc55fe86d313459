#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "modules/AnionCtrl.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

class AnionCtrl : public testing::Test {
  protected:
    sp<RecordingManager> manager = new RecordingManager;
    sp<android::AnionCtrl> anion = new android::AnionCtrl(manager);
};

TEST_F(AnionCtrl, SendsNothingWhenItIsCreated) {
    EXPECT_THAT(manager->requests(), IsEmpty());
}

TEST_F(AnionCtrl, PassesAnyStatusOnUnchanged) {
    for (const int status : {2, -1, 0x100}) {
        anion->setAnionStatus(status);
        EXPECT_EQ(manager->requests().back(), words({0x2301, status}));
    }
}

TEST_F(AnionCtrl, GivesTheServicesStatusAndMinusOneWhenItIsDead) {
    for (const int status : {0, 6, -5, -1}) {
        manager->answer(words({status}));
        EXPECT_EQ(anion->setAnionStatus(1), status);
    }
}

}  // namespace
