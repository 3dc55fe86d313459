#include <gtest/gtest.h>

#include "modules/SuspendCtrl.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using namespace tarn::test;

namespace {

class SuspendCtrl : public testing::Test {
  protected:
    sp<RecordingManager> manager = new RecordingManager;
    sp<android::SuspendCtrl> suspend = new android::SuspendCtrl(manager);
};

TEST_F(SuspendCtrl, SetsWithAnIntegerOfZeroOrOne) {
    suspend->setSuspendStatus(true);
    EXPECT_EQ(manager->requests().back(), hex("01450000 01000000"));
    suspend->setFakeStandyStatus(false);
    EXPECT_EQ(manager->requests().back(), hex("03450000 00000000"));
}

TEST_F(SuspendCtrl, ReturnsZeroForEveryAnswerAndMinusOneWhenTheServiceIsDead) {
    for (const int status : {0, 3, -5}) {
        manager->answer(words({status}));
        EXPECT_EQ(suspend->setSuspendStatus(true), 0) << status;
        EXPECT_EQ(suspend->setFakeStandyStatus(true), 0) << status;
    }
    manager->answer(words({-1}));
    EXPECT_EQ(suspend->setSuspendStatus(true), -1);
    EXPECT_EQ(suspend->setFakeStandyStatus(true), -1);
}

TEST_F(SuspendCtrl, ReadsFalseFromAShortReplyOrADeadService) {
    for (const Bytes& reply : {words({0}), words({-1, 1}), Bytes()}) {
        manager->answer(reply);
        EXPECT_FALSE(suspend->getSuspendStatus());
        EXPECT_FALSE(suspend->getFakeStandyStatus());
    }
}

}  // namespace
