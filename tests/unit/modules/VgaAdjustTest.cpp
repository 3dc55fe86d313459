#include <gtest/gtest.h>

#include "modules/VgaAdjust.h"
#include "tests/support/LogCapture.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

class VgaAdjust : public testing::Test {
  protected:
    sp<RecordingManager> manager = new RecordingManager;
    sp<android::VgaAdjust> vga = new android::VgaAdjust(manager);
};

TEST_F(VgaAdjust, SendsTheItemBeforeItsValue) {
    vga->setvgaAdjustData(4, -7);
    EXPECT_EQ(manager->requests().back(), hex("01250000 04000000 f9ffffff"));
    vga->getvgaAdjustData(4);
    EXPECT_EQ(manager->requests().back(), hex("02250000 04000000"));
}

TEST_F(VgaAdjust, ReturnsMinusOneSilentlyWhenTheServiceIsDead) {
    LogCapture log;
    manager->answer(words({-1}));
    EXPECT_EQ(vga->setvgaAdjustData(1, 2), -1);
    EXPECT_EQ(vga->getvgaAdjustData(1), -1);
    EXPECT_THAT(log.lines(), IsEmpty());
}

}  // namespace
