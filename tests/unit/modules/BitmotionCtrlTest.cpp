#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "modules/BitmotionCtrl.h"
#include "tests/support/LogCalls.h"
#include "tests/support/RecordingManager.h"

using namespace android;
using tarn::test::hex;
using tarn::test::logCalls;
using tarn::test::RecordingManager;
using tarn::test::Reply;
using tarn::test::words;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class BitmotionCtrl : public testing::Test {
  protected:
    BitmotionCtrl()
        : mManager(new RecordingManager), mBitmotion(new android::BitmotionCtrl(mManager)) {
        logCalls().clear();
    }

    const sp<RecordingManager> mManager;
    const sp<IBitmotionCtrl> mBitmotion;
};

template <typename MemberFunction>
uintptr_t tableIndex(MemberFunction method) {
    uintptr_t word = 0;
    memcpy(&word, &method, sizeof(word));
    return (word & ~uintptr_t{1}) / sizeof(void*);
}

TEST(IBitmotionCtrl, HasItsDestructorsBeforeTheMethods) {
    EXPECT_EQ(tableIndex(&IBitmotionCtrl::setBrightness), 2u);
    EXPECT_EQ(tableIndex(&IBitmotionCtrl::getVersion), 9u);
}

TEST_F(BitmotionCtrl, MakesItsConstructorsLogCallWithoutATag) {
    const sp<IBitmotionCtrl> another = new android::BitmotionCtrl(mManager);
    ASSERT_EQ(logCalls().size(), 1u);
    EXPECT_EQ(logCalls()[0].level, static_cast<unsigned int>(TARN_LOG_INFO));
    EXPECT_FALSE(logCalls()[0].hasTag);
    EXPECT_EQ(logCalls()[0].function, "BitmotionCtrl");
    EXPECT_EQ(logCalls()[0].line, 7);
    EXPECT_EQ(logCalls()[0].message, "BitmotionCtrl created.");
}

TEST_F(BitmotionCtrl, GivesTheFallbacksWhenTheServiceIsDeadAndLogsNothing) {
    mManager->answer(words({-1}));
    EXPECT_FALSE(mBitmotion->setBrightness(1));
    EXPECT_EQ(mBitmotion->setDevicePortEnabled(String16("p"), true), -1);
    EXPECT_EQ(mBitmotion->setWan1Address(String16("a")), -1);
    EXPECT_EQ(mBitmotion->erase(1), -1);
    EXPECT_EQ(mBitmotion->getVersion(), "");
    EXPECT_THAT(logCalls(), IsEmpty());
}

TEST_F(BitmotionCtrl, SendsAPortAndItsSwitch) {
    mBitmotion->setDevicePortEnabled(String16("ab"), true);
    EXPECT_THAT(mManager->requests(),
                ElementsAre(hex("01380000 02000000 61006200 00000000 01000000")));
}

TEST_F(BitmotionCtrl, PassesTheEraseArgumentOnAsItsBits) {
    mBitmotion->erase(0xFFFFFFFFu);
    EXPECT_THAT(mManager->requests(), ElementsAre(words({0x3806, -1})));
}

TEST_F(BitmotionCtrl, LeavesTheWordBeforeTheVersionOut) {
    mManager->answer(Reply(0).i32(0).s16("V1.2"));
    EXPECT_EQ(mBitmotion->getVersion(), "V1.2");
    mManager->answer(Reply(-2).i32(5).s16("\xC3\xBC"));
    EXPECT_EQ(mBitmotion->getVersion(), "\xC3\xBC");
}

TEST_F(BitmotionCtrl, HasNoVersionInAnEmptyOrShortReply) {
    mManager->answer(tarn::test::Bytes());
    EXPECT_EQ(mBitmotion->getVersion(), "");
    mManager->answer(words({0, 0}));
    EXPECT_EQ(mBitmotion->getVersion(), "");
}

}  // namespace
