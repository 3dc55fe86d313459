#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <string>

#include "modules/BurnMacCtrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::_EnumBurnMacType;
using android::EntitySwMac;
using android::sp;
using android::String16;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using namespace tarn::test;

namespace {

constexpr const char* kTag = "Zunt@BurnMacCtrl";
constexpr auto kType = static_cast<_EnumBurnMacType>(2);

class BurnMacCtrl : public testing::Test {
  protected:
    BurnMacCtrl() { manager->log.clear(); }

    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::BurnMacCtrl> macs = new android::BurnMacCtrl(manager);
};

TEST_F(BurnMacCtrl, LogsItsConstruction) {
    const sp<android::BurnMacCtrl> another = new android::BurnMacCtrl(manager);
    EXPECT_THAT(manager->log.lines(), ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "BurnMacCtrl",
                                                         "BurnMacCtrl::BurnMacCtrl")));
}

TEST_F(BurnMacCtrl, ReadsASlotFieldByField) {
    Reply reply(0);
    reply.i32(2).i32(-3).s16("n\xC3\xA4me").boolean(true).s16("b").boolean(false);
    reply.i32(4).s16("").boolean(false).s16("").boolean(true);
    manager->answer(reply);
    std::vector<EntitySwMac> list(5);
    EXPECT_TRUE(macs->getSupportBurnMacList(&list));
    ASSERT_THAT(list, SizeIs(2));
    EXPECT_EQ(list[0].macId, -3);
    EXPECT_EQ(list[0].macText1, "n\xC3\xA4me");
    EXPECT_TRUE(list[0].macFlag1);
    EXPECT_EQ(list[0].macText2, "b");
    EXPECT_FALSE(list[0].macFlag2);
    EXPECT_FALSE(list[1].macFlag1);
    EXPECT_TRUE(list[1].macFlag2);
}

TEST_F(BurnMacCtrl, DescribesASlotWithFiveFieldsInTheirOrder) {
    const EntitySwMac mac{1, "a", true, "b", false};
    EXPECT_EQ(mac.macId, 1);
    EXPECT_EQ(mac.macText1, "a");
    EXPECT_TRUE(mac.macFlag1);
    EXPECT_EQ(mac.macText2, "b");
    EXPECT_FALSE(mac.macFlag2);
    EXPECT_EQ(EntitySwMac().macText1, "");
}

TEST_F(BurnMacCtrl, EmptiesTheListAndLogsAnErrorWhenTheServiceIsDead) {
    manager->answer(words({-1, 1}));
    std::vector<EntitySwMac> list(2);
    EXPECT_FALSE(macs->getSupportBurnMacList(&list));
    EXPECT_THAT(list, IsEmpty());
    EXPECT_EQ(manager->linesBefore, 1u);
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "getSupportBurnMacList",
                                   "[getSupportBurnMacList] ++ \n"),
                            Logged(TARN_LOG_ERROR, kTag, "getSupportBurnMacList",
                                   "[getSupportBurnMacList]  error, ret = -1\n")));
}

TEST_F(BurnMacCtrl, LogsOnlyTheEntryWhenTheListIsRead) {
    manager->answer(words({5, 0}));
    std::vector<EntitySwMac> list(2);
    EXPECT_TRUE(macs->getSupportBurnMacList(&list));
    EXPECT_THAT(list, IsEmpty());
    EXPECT_THAT(manager->log.messages(), ElementsAre("[getSupportBurnMacList] ++ \n"));
}

TEST_F(BurnMacCtrl, AppendsEmptySlotsBehindTheEndOfAShortReply) {
    manager->answer(words({0, 1000, 8}));
    std::vector<EntitySwMac> list;
    EXPECT_TRUE(macs->getSupportBurnMacList(&list));
    ASSERT_THAT(list, SizeIs(1000));
    EXPECT_EQ(list[0].macId, 8);
    EXPECT_EQ(list[999].macText2, "");
}

TEST_F(BurnMacCtrl, ListsNoSlotForANegativeCount) {
    manager->answer(words({0, -2, 1, 1, 1}));
    std::vector<EntitySwMac> list;
    EXPECT_TRUE(macs->getSupportBurnMacList(&list));
    EXPECT_THAT(list, IsEmpty());
}

TEST_F(BurnMacCtrl, SendsTextAndBytesWithDifferentCommands) {
    unsigned char bytes[] = {0x02, 0x0a, 0x0b, 0x0c, 0x0d, 0x0e};
    macs->setBurnMac(kType, String16("02"));
    macs->setBurnMac(kType, bytes, 6);
    EXPECT_THAT(manager->requests(),
                ElementsAre(hex("02350000 02000000 02000000 30003200 00000000"),
                            hex("01350000 02000000 06000000 020a0b0c 0d0e0000")));
}

TEST_F(BurnMacCtrl, SendsALengthOfMinusOneForNoBytes) {
    macs->setBurnMac(kType, nullptr, 6);
    EXPECT_THAT(manager->requests(), ElementsAre(hex("01350000 02000000 ffffffff")));
}

TEST_F(BurnMacCtrl, ReportsTheTextSettersFailureAsTrueAndTheBytesSettersAsFalse) {
    unsigned char bytes[] = {1};
    manager->answer(words({-1, 1}));
    EXPECT_TRUE(macs->setBurnMac(kType, String16("02")));
    EXPECT_FALSE(macs->setBurnMac(kType, bytes, 1));
    manager->answer(words({0, 1}));
    EXPECT_FALSE(macs->setBurnMac(kType, String16("02")));
    EXPECT_TRUE(macs->setBurnMac(kType, bytes, 1));
}

TEST_F(BurnMacCtrl, LogsEachMethodsNameBeforeItsCommand) {
    unsigned char bytes[] = {1};
    macs->setBurnMac(kType, String16("02"));
    EXPECT_EQ(manager->linesBefore, 1u);
    macs->setBurnMac(kType, bytes, 1);
    EXPECT_EQ(manager->linesBefore, 2u);
    macs->getBurnMac(kType);
    EXPECT_EQ(manager->linesBefore, 3u);
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "setBurnMac", "BurnMacCtrl::setBurnMac"),
                            Logged(TARN_LOG_DEBUG, kTag, "setBurnMac", "BurnMacCtrl::setBurnMac"),
                            Logged(TARN_LOG_DEBUG, kTag, "getBurnMac", "BurnMacCtrl::getBurnMac")));
}

}  // namespace
