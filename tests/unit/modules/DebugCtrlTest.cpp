#include <gtest/gtest.h>

#include "modules/DebugCtrl.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using namespace tarn::test;

namespace {

class DebugCtrl : public testing::Test {
  protected:
    sp<RecordingManager> manager = new RecordingManager;
    sp<android::DebugCtrl> debug = new android::DebugCtrl(manager);
};

TEST_F(DebugCtrl, ReadsTheAnswerBehindAnyStatusThatIsNoFailure) {
    manager->answer(Reply(-5).boolean(true));
    EXPECT_TRUE(debug->getSuperRootState());
    EXPECT_TRUE(debug->setSuperRootState("open"));
    manager->answer(Reply(1).boolean(false));
    EXPECT_FALSE(debug->getSuperRootState());
    EXPECT_FALSE(debug->setSuperRootState("open"));
}

TEST_F(DebugCtrl, ReturnsFalseForAShortReplyOrADeadService) {
    for (const Bytes& reply : {words({-1, 1}), words({0}), Bytes()}) {
        manager->answer(reply);
        EXPECT_FALSE(debug->getSuperRootState());
        EXPECT_FALSE(debug->setSuperRootState("open"));
    }
}

TEST_F(DebugCtrl, PassesTheStateTextThrough) {
    debug->setSuperRootState("a\xc3\xa9");
    EXPECT_EQ(manager->requests().back(), hex("01480000 02000000 6100e900 00000000"));
}

}  // namespace
