#include <gtest/gtest.h>

#include "modules/AoipCtrl.h"
#include "tests/support/LogCapture.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using android::String16;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

class AoipCtrl : public testing::Test {
  protected:
    Bytes sent() const { return manager->requests().back(); }

    sp<RecordingManager> manager = new RecordingManager;
    sp<android::AoipCtrl> aoip = new android::AoipCtrl(manager);
};

TEST_F(AoipCtrl, ListsNoDevicesWhateverTheServiceAnswers) {
    const Bytes replies[] = {Reply(0).s16("[{\"name\":\"unit\"}]").bytes(), words({5}), words({-1}),
                             Bytes()};
    for (const Bytes& reply : replies) {
        manager->answer(reply);
        EXPECT_EQ(aoip->listDevices(), String16("{}"));
        EXPECT_EQ(sent(), hex("07430000"));
    }
}

TEST_F(AoipCtrl, ListsNoDevicesWhenThereIsNoService) {
    const sp<android::TarnManager> unreachable = new android::TarnManager;
    const sp<android::AoipCtrl> cutOff = new android::AoipCtrl(unreachable);
    EXPECT_EQ(cutOff->listDevices(), String16("{}"));
    EXPECT_EQ(cutOff->volumeUp(), -1);
}

TEST_F(AoipCtrl, UpgradesWithBothTextsInTheirOrder) {
    manager->answer(words({3}));
    EXPECT_EQ(aoip->upgradeFirmware(String16("ab"), String16("")), 3);
    EXPECT_EQ(sent(), hex("06430000 02000000 61006200 00000000 00000000 00000000"));
}

TEST_F(AoipCtrl, ReturnsMinusOneSilentlyWhenTheServiceIsDead) {
    LogCapture log;
    manager->answer(words({-1}));
    EXPECT_EQ(aoip->upgradeFirmware(String16("a"), String16("b")), -1);
    EXPECT_EQ(aoip->mute(), -1);
    EXPECT_EQ(aoip->getLocalStatus(), -1);
    EXPECT_THAT(log.lines(), IsEmpty());
}

}  // namespace
