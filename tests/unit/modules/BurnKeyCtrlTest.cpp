#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <string>

#include "modules/BurnKeyCtrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::_EnumBurnKeyType;
using android::EntitySwKey;
using android::sp;
using android::String16;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using namespace tarn::test;

namespace {

constexpr const char* kTag = "Zunt@BurnKeyCtrl";
constexpr auto kType = static_cast<_EnumBurnKeyType>(2);

class BurnKeyCtrl : public testing::Test {
  protected:
    BurnKeyCtrl() { manager->log.clear(); }

    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::BurnKeyCtrl> keys = new android::BurnKeyCtrl(manager);
};

TEST_F(BurnKeyCtrl, LogsItsConstruction) {
    const sp<android::BurnKeyCtrl> another = new android::BurnKeyCtrl(manager);
    EXPECT_THAT(manager->log.lines(), ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "BurnKeyCtrl",
                                                         "BurnKeyCtrl::BurnKeyCtrl")));
}

TEST_F(BurnKeyCtrl, ReadsAKindOfKeyFieldByField) {
    Reply reply(0);
    reply.i32(2).i32(-3).s16("n\xC3\xA4me").s16("b").boolean(true).s16("ccc").boolean(false);
    reply.i32(4).s16("").s16("").boolean(false).s16("").boolean(true);
    manager->answer(reply);
    std::vector<EntitySwKey> list(5);
    EXPECT_TRUE(keys->getSupportBurnKeyList(&list));
    ASSERT_THAT(list, SizeIs(2));
    EXPECT_EQ(list[0].keyId, -3);
    EXPECT_EQ(list[0].keyText1, "n\xC3\xA4me");
    EXPECT_EQ(list[0].keyText2, "b");
    EXPECT_TRUE(list[0].keyFlag1);
    EXPECT_EQ(list[0].keyText3, "ccc");
    EXPECT_FALSE(list[0].keyFlag2);
    EXPECT_FALSE(list[1].keyFlag1);
    EXPECT_TRUE(list[1].keyFlag2);
}

TEST_F(BurnKeyCtrl, DescribesAKindOfKeyWithSixFieldsInTheirOrder) {
    const EntitySwKey key{1, "a", "b", true, "c", false};
    EXPECT_EQ(key.keyId, 1);
    EXPECT_EQ(key.keyText1, "a");
    EXPECT_EQ(key.keyText2, "b");
    EXPECT_TRUE(key.keyFlag1);
    EXPECT_EQ(key.keyText3, "c");
    EXPECT_FALSE(key.keyFlag2);
    EXPECT_EQ(EntitySwKey().keyText1, "");
}

TEST_F(BurnKeyCtrl, EmptiesTheListAndLogsAnErrorWhenTheServiceIsDead) {
    manager->answer(words({-1, 1}));
    std::vector<EntitySwKey> list(2);
    EXPECT_FALSE(keys->getSupportBurnKeyList(&list));
    EXPECT_THAT(list, IsEmpty());
    EXPECT_EQ(manager->linesBefore, 1u);
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "getSupportBurnKeyList",
                                   "[getSupportBurnKeyList] ++ \n"),
                            Logged(TARN_LOG_ERROR, kTag, "getSupportBurnKeyList",
                                   "[getSupportBurnKeyList]  error, ret = -1\n")));
}

TEST_F(BurnKeyCtrl, LogsOnlyTheEntryWhenTheListIsRead) {
    manager->answer(words({5, 0}));
    std::vector<EntitySwKey> list(2);
    EXPECT_TRUE(keys->getSupportBurnKeyList(&list));
    EXPECT_THAT(list, IsEmpty());
    EXPECT_THAT(manager->log.messages(), ElementsAre("[getSupportBurnKeyList] ++ \n"));
}

TEST_F(BurnKeyCtrl, AppendsEmptyKindsBehindTheEndOfAShortReply) {
    manager->answer(words({0, 1000, 8}));
    std::vector<EntitySwKey> list;
    EXPECT_TRUE(keys->getSupportBurnKeyList(&list));
    ASSERT_THAT(list, SizeIs(1000));
    EXPECT_EQ(list[0].keyId, 8);
    EXPECT_EQ(list[999].keyId, 0);
    EXPECT_EQ(list[999].keyText3, "");
}

TEST_F(BurnKeyCtrl, ListsNoKindForANegativeCount) {
    manager->answer(words({0, -2, 1, 1, 1}));
    std::vector<EntitySwKey> list;
    EXPECT_TRUE(keys->getSupportBurnKeyList(&list));
    EXPECT_THAT(list, IsEmpty());
}

TEST_F(BurnKeyCtrl, LogsEachMethodsNameBeforeItsCommand) {
    keys->setBurnKey(kType, String16("k"));
    EXPECT_EQ(manager->linesBefore, 1u);
    keys->setCleanBurnKey(kType);
    EXPECT_EQ(manager->linesBefore, 2u);
    keys->getBurnKey(kType);
    EXPECT_EQ(manager->linesBefore, 3u);
    keys->getBurnKeyVersion(kType);
    EXPECT_EQ(manager->linesBefore, 4u);
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "setBurnKey", "BurnKeyCtrl::setBurnKey"),
                            Logged(TARN_LOG_DEBUG, kTag, "setCleanBurnKey",
                                   "BurnKeyCtrl::setCleanBurnKey"),
                            Logged(TARN_LOG_DEBUG, kTag, "getBurnKey", "BurnKeyCtrl::getBurnKey"),
                            Logged(TARN_LOG_DEBUG, kTag, "getBurnKeyVersion",
                                   "BurnKeyCtrl::getBurnKeyVersion")));
}

TEST_F(BurnKeyCtrl, ReportsASettersFailureAsTrue) {
    manager->answer(words({-1}));
    EXPECT_TRUE(keys->setBurnKey(kType, String16("k")));
    EXPECT_TRUE(keys->setCleanBurnKey(kType));
    manager->answer(words({0}));
    EXPECT_FALSE(keys->setBurnKey(kType, String16("k")));
    EXPECT_FALSE(keys->setCleanBurnKey(kType));
}

}  // namespace
