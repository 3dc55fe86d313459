#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <string>
#include <vector>

#include "modules/LandscapeCtrl.h"
#include "tests/support/LogWatchingManager.h"

using namespace android;
using tarn::test::hex;
using tarn::test::LogLine;
using tarn::test::LogWatchingManager;
using tarn::test::Reply;
using tarn::test::words;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class LandscapeCtrl : public testing::Test {
  protected:
    LandscapeCtrl() { mManager->log.clear(); }

    const sp<LogWatchingManager> mManager = new LogWatchingManager;
    const sp<ILandscapeCtrl> mLandscape = new android::LandscapeCtrl(mManager);
};

void expectLine(const LogLine& line, int priority, const std::string& function, int number,
                const std::string& message) {
    EXPECT_EQ(line.priority, priority);
    EXPECT_EQ(line.tag, "Zunt@LandscapeCtrl");
    EXPECT_EQ(line.function, function);
    EXPECT_EQ(line.line, number);
    EXPECT_EQ(line.message, message);
}

TEST_F(LandscapeCtrl, LogsItsConstruction) {
    const sp<ILandscapeCtrl> another = new android::LandscapeCtrl(mManager);
    const std::vector<LogLine> lines = mManager->log.lines();
    ASSERT_EQ(lines.size(), 1u);
    expectLine(lines[0], TARN_LOG_DEBUG, "LandscapeCtrl", 29, "LandscapeCtrl::LandscapeCtrl");
}

TEST_F(LandscapeCtrl, LogsTheFailureToReadTheList) {
    mManager->answer(words({-1}));
    EXPECT_THAT(mLandscape->getLandscapeAppList(), IsEmpty());
    EXPECT_EQ(mManager->linesBefore, 1u);
    const std::vector<LogLine> lines = mManager->log.lines();
    ASSERT_EQ(lines.size(), 2u);
    expectLine(lines[0], TARN_LOG_DEBUG, "getLandscapeAppList", 35, "[getLandscapeAppList] ++ \n");
    expectLine(lines[1], TARN_LOG_ERROR, "getLandscapeAppList", 46,
               "[getLandscapeAppList]  error, ret = -1\n");
}

TEST_F(LandscapeCtrl, LogsTheFailureToReplaceTheList) {
    mManager->answer(words({-1}));
    EXPECT_FALSE(mLandscape->setLandscapeAppList({"a"}));
    EXPECT_EQ(mManager->linesBefore, 1u);
    const std::vector<LogLine> lines = mManager->log.lines();
    ASSERT_EQ(lines.size(), 2u);
    expectLine(lines[0], TARN_LOG_DEBUG, "setLandscapeAppList", 53, "[setLandscapeAppList] ++ \n");
    expectLine(lines[1], TARN_LOG_ERROR, "setLandscapeAppList", 70,
               "[setLandscapeAppList]  error, ret = -1\n");
}

TEST_F(LandscapeCtrl, LogsOnlyTheEntryBeforeTheCommandOnSuccess) {
    mManager->answer(words({0, 0, 1}));
    mLandscape->getLandscapeAppList();
    EXPECT_EQ(mManager->linesBefore, 1u);
    EXPECT_TRUE(mLandscape->setLandscapeAppList({"a"}));
    EXPECT_EQ(mManager->linesBefore, 2u);
    EXPECT_THAT(mManager->log.messages(),
                ElementsAre("[getLandscapeAppList] ++ \n", "[setLandscapeAppList] ++ \n"));
}

TEST_F(LandscapeCtrl, SendsAnEmptyListToo) {
    mLandscape->setLandscapeAppList({});
    EXPECT_THAT(mManager->requests(), ElementsAre(words({0x3701, 0})));
}

TEST_F(LandscapeCtrl, SendsTheListInItsOrderAsUtf16) {
    mLandscape->setLandscapeAppList({"b", "", "a\xC3\xBC"});
    EXPECT_THAT(mManager->requests(), ElementsAre(hex("01370000 03000000"
                                                      "01000000 62000000"
                                                      "00000000 00000000"
                                                      "02000000 6100fc00 00000000")));
}

TEST_F(LandscapeCtrl, TakesTheBooleanBehindTheIgnoredWord) {
    mManager->answer(words({0, 1, 0}));
    EXPECT_FALSE(mLandscape->setLandscapeAppList({"a"}));
    mManager->answer(words({0, 0, 1}));
    EXPECT_TRUE(mLandscape->setLandscapeAppList({"a"}));
    mManager->answer(words({0, 1}));
    EXPECT_FALSE(mLandscape->setLandscapeAppList({"a"}));
}

TEST_F(LandscapeCtrl, ReadsTheListAsUtf8) {
    mManager->answer(Reply(0).i32(2).s16("com.\xE2\x82\xAC").s16("z"));
    EXPECT_THAT(mLandscape->getLandscapeAppList(), ElementsAre("com.\xE2\x82\xAC", "z"));
}

TEST_F(LandscapeCtrl, AppendsEmptyNamesBehindTheEndOfAShortReply) {
    mManager->answer(Reply(0).i32(3).s16("a"));
    EXPECT_THAT(mLandscape->getLandscapeAppList(), ElementsAre("a", "", ""));
}

TEST_F(LandscapeCtrl, ReadsNothingForANegativeCount) {
    mManager->answer(words({0, -1, 1, 97}));
    EXPECT_THAT(mLandscape->getLandscapeAppList(), IsEmpty());
}

}  // namespace
