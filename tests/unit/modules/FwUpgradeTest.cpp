#include <gtest/gtest.h>
#include <signal.h>
#include <tarn/TarnLog.h>

#include <cstddef>
#include <string>
#include <type_traits>

#include "modules/FwUpgrade.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::sp;
using android::String16;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using namespace tarn::test;

static_assert(sizeof(EntityFwInfoMcu) == 1108);
static_assert(alignof(EntityFwInfoMcu) == 4);
static_assert(std::is_trivially_copyable_v<EntityFwInfoMcu>);
static_assert(offsetof(EntityFwInfoMcu, intField1) == 0);
static_assert(offsetof(EntityFwInfoMcu, intField2) == 4);
static_assert(offsetof(EntityFwInfoMcu, strField1) == 8);
static_assert(offsetof(EntityFwInfoMcu, intField3) == 264);
static_assert(offsetof(EntityFwInfoMcu, strField2) == 268);
static_assert(offsetof(EntityFwInfoMcu, intField4) == 524);
static_assert(offsetof(EntityFwInfoMcu, strField3) == 528);
static_assert(offsetof(EntityFwInfoMcu, strField4) == 784);
static_assert(offsetof(EntityFwInfoMcu, shortStrField) == 1040);
static_assert(offsetof(EntityFwInfoMcu, intField5) == 1104);
static_assert(sizeof(EntityFwInfoMcu::strField1) == 256);
static_assert(sizeof(EntityFwInfoMcu::strField2) == 256);
static_assert(sizeof(EntityFwInfoMcu::strField3) == 256);
static_assert(sizeof(EntityFwInfoMcu::strField4) == 256);
static_assert(sizeof(EntityFwInfoMcu::shortStrField) == 64);

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

    sp<LogWatchingManager> manager = new LogWatchingManager;
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

TEST_F(FwUpgrade, ReadsATargetFieldByField) {
    const auto list = listOf(replyWith({"one", "t\xC3\xBC", "", "four", "short"}));
    ASSERT_THAT(list, SizeIs(1));
    EXPECT_EQ(list[0].intField1, 11);
    EXPECT_EQ(list[0].intField2, -12);
    EXPECT_STREQ(list[0].strField1, "one");
    EXPECT_EQ(list[0].intField3, 13);
    EXPECT_STREQ(list[0].strField2, "t\xC3\xBC");
    EXPECT_EQ(list[0].intField4, -14);
    EXPECT_STREQ(list[0].strField3, "");
    EXPECT_STREQ(list[0].strField4, "four");
    EXPECT_STREQ(list[0].shortStrField, "short");
    EXPECT_EQ(list[0].intField5, 15);
}

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

TEST_F(FwUpgrade, LeavesTheListAloneAndLogsNothingWhenTheServiceIsDead) {
    manager->answer(words({-1, 1}));
    std::vector<EntityFwInfoMcu> list(3);
    EXPECT_FALSE(fwUpgrade->getFwMcuList(list));
    EXPECT_THAT(list, SizeIs(3));
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(FwUpgrade, AppendsZeroTargetsBehindTheEndOfAShortReply) {
    manager->answer(words({0, 500, 8}));
    std::vector<EntityFwInfoMcu> list;
    EXPECT_TRUE(fwUpgrade->getFwMcuList(list));
    ASSERT_THAT(list, SizeIs(500));
    EXPECT_EQ(list[0].intField1, 8);
    EXPECT_EQ(list[499].intField1, 0);
    EXPECT_STREQ(list[499].strField1, "");
}

TEST_F(FwUpgrade, LogsTheCountAfterTheCommand) {
    manager->answer(words({0, -3}));
    std::vector<EntityFwInfoMcu> list;
    fwUpgrade->getFwMcuList(list);
    EXPECT_EQ(manager->linesBefore, 0u);
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(Logged(TARN_LOG_DEBUG, "Zunt@FwUpgrade", "getFwMcuList",
                                   "getFwMcuList list_num = -3")));
}

TEST_F(FwUpgrade, LogsNothingElse) {
    manager->answer(words({-1}));
    fwUpgrade->setFirmwareUpgrade(1, String16("p"));
    fwUpgrade->getMcuBinNameToUp(1);
    fwUpgrade->getFwVersion(1);
    fwUpgrade->getFwOtakey(1);
    fwUpgrade->getFwInfoTypecList();
    fwUpgrade->getFwTargetVersion(1);
    fwUpgrade->getFwTargetBinPath(1);
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(FwUpgrade, SendsThePathBeforeTheType) {
    fwUpgrade->setFirmwareUpgrade(3, String16("ab"));
    EXPECT_THAT(manager->requests(),
                ElementsAre(hex("010e0000 02000000 61006200 00000000 03000000")));
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
