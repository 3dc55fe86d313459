#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>

#include <string>

#include "modules/FwUpgrade.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using testing::SizeIs;
using namespace tarn::test;

namespace {

/** The texts of a target, of which each test spoils one. */
struct Texts {
    std::string text1, text2, text3, text4, shortText;
};

Bytes replyWith(const Texts& texts) {
    Reply reply(0);
    reply.i32(1).i32(11).i32(-12).s16(texts.text1).i32(13).s16(texts.text2).i32(-14);
    reply.s16(texts.text3).s16(texts.text4).s16(texts.shortText).i32(15);
    return reply.bytes();
}

class FwUpgrade : public testing::Test {
  protected:
    std::vector<EntityFwInfoMcu> listOf(const Bytes& reply) {
        manager->answer(reply);
        std::vector<EntityFwInfoMcu> list;
        EXPECT_TRUE(fwUpgrade->getFwMcuList(list));
        return list;
    }

    sp<RecordingManager> manager = new RecordingManager;
    sp<android::FwUpgrade> fwUpgrade = new android::FwUpgrade(manager);
};

class FwUpgradeDeathTest : public FwUpgrade {
  protected:
    void expectAbort(const Texts& texts) {
        manager->answer(replyWith(texts));
        std::vector<EntityFwInfoMcu> list;
        EXPECT_EXIT(fwUpgrade->getFwMcuList(list), testing::KilledBySignal(SIGABRT), "");
    }
};

TEST_F(FwUpgrade, FillsWhatATextLeavesOfItsFieldWithZeros) {
    const auto list = listOf(replyWith({"one", "", "", "", ""}));
    ASSERT_THAT(list, SizeIs(1));
    for (size_t i = 3; i < sizeof(list[0].strField1); i++) EXPECT_EQ(list[0].strField1[i], 0);
}

TEST_F(FwUpgrade, AppendsTheTargetsToWhatTheListHolds) {
    Reply reply(0);
    reply.i32(2).i32(1).i32(2).s16("a").i32(3).s16("b").i32(4).s16("c").s16("d").s16("e").i32(5);
    reply.i32(6).i32(7).s16("f").i32(8).s16("g").i32(9).s16("h").s16("i").s16("j").i32(10);
    manager->answer(reply);
    std::vector<EntityFwInfoMcu> list;
    EXPECT_TRUE(fwUpgrade->getFwMcuList(list));
    EXPECT_TRUE(fwUpgrade->getFwMcuList(list));
    ASSERT_THAT(list, SizeIs(4));
    EXPECT_STREQ(list[1].shortStrField, "j");
    EXPECT_STREQ(list[2].strField1, "a");
    EXPECT_EQ(list[3].intField5, 10);
}

TEST_F(FwUpgrade, LeavesTheListAloneForACountOfZeroOrLess) {
    for (const int32_t count : {0, -1, -2147483647}) {
        manager->answer(words({0, count, 1, 2, 3}));
        std::vector<EntityFwInfoMcu> list(2);
        list[1].intField1 = 7;
        EXPECT_TRUE(fwUpgrade->getFwMcuList(list));
        ASSERT_THAT(list, SizeIs(2));
        EXPECT_EQ(list[1].intField1, 7);
    }
}

TEST_F(FwUpgrade, LeavesTheListAloneWhenTheServiceIsDead) {
    manager->answer(words({-1, 1}));
    std::vector<EntityFwInfoMcu> list(3);
    EXPECT_FALSE(fwUpgrade->getFwMcuList(list));
    EXPECT_THAT(list, SizeIs(3));
}

TEST_F(FwUpgrade, TakesTextsThatJustFit) {
    const std::string longest(255, 'x');
    const std::string longestShort(63, 'y');
    const auto list = listOf(replyWith({longest, longest, longest, longest, longestShort}));
    ASSERT_THAT(list, SizeIs(1));
    EXPECT_EQ(list[0].strField1, longest);
    EXPECT_EQ(list[0].strField2, longest);
    EXPECT_EQ(list[0].strField3, longest);
    EXPECT_EQ(list[0].strField4, longest);
    EXPECT_EQ(list[0].shortStrField, longestShort);
    EXPECT_EQ(list[0].intField5, 15);
}

TEST_F(FwUpgradeDeathTest, AbortsOnATextThatIsOneByteTooLong) {
    const std::string tooLong(256, 'x');
    expectAbort({tooLong, "", "", "", ""});
    expectAbort({"", tooLong, "", "", ""});
    expectAbort({"", "", tooLong, "", ""});
    expectAbort({"", "", "", tooLong, ""});
    expectAbort({"", "", "", "", std::string(64, 'y')});
}

TEST_F(FwUpgradeDeathTest, MeasuresATextInUtf8) {
    std::string umlauts;
    for (int i = 0; i < 128; i++) umlauts += "\xC3\xBC";
    expectAbort({umlauts, "", "", "", ""});
}

}  // namespace
