#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <string>
#include <vector>

#include "modules/SmartPenModeCtrl.h"
#include "tests/support/LogWatchingManager.h"

using namespace android;
using tarn::test::LogLine;
using tarn::test::LogWatchingManager;
using tarn::test::words;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SmartPenModeCtrl : public testing::Test {
  protected:
    SmartPenModeCtrl() { mManager->log.clear(); }

    const sp<LogWatchingManager> mManager = new LogWatchingManager;
    const sp<ISmartPenModeCtrl> mPen = new android::SmartPenModeCtrl(mManager);
};

void expectDebugLine(const LogLine& line, const std::string& function, int number,
                     const std::string& message) {
    EXPECT_EQ(line.priority, TARN_LOG_DEBUG);
    EXPECT_EQ(line.tag, "Zunt@SmartPenModeCtrl");
    EXPECT_EQ(line.function, function);
    EXPECT_EQ(line.line, number);
    EXPECT_EQ(line.message, message);
}

TEST_F(SmartPenModeCtrl, LogsItsConstruction) {
    const sp<ISmartPenModeCtrl> another = new android::SmartPenModeCtrl(mManager);
    const std::vector<LogLine> lines = mManager->log.lines();
    ASSERT_EQ(lines.size(), 1u);
    expectDebugLine(lines[0], "SmartPenModeCtrl", 29, "SmartPenModeCtrl::SmartPenModeCtrl");
}

TEST_F(SmartPenModeCtrl, LogsEveryModeOfTheList) {
    mManager->answer(words({0, 2, 0, 1}));
    EXPECT_THAT(mPen->getSupportSmartPenModeList(),
                ElementsAre(_EnumSmartPenMode(0), _EnumSmartPenMode(1)));
    const std::vector<LogLine> lines = mManager->log.lines();
    ASSERT_EQ(lines.size(), 2u);
    expectDebugLine(lines[0], "getSupportSmartPenModeList", 43,
                    "SmartPenModeCtrl::getSupportSmartPenModeList list_cnt:2, val:0");
    expectDebugLine(lines[1], "getSupportSmartPenModeList", 43,
                    "SmartPenModeCtrl::getSupportSmartPenModeList list_cnt:2, val:1");
}

TEST_F(SmartPenModeCtrl, ListsNoModeAndLogsNothingWhenTheServiceIsDead) {
    mManager->answer(words({-1}));
    EXPECT_THAT(mPen->getSupportSmartPenModeList(), IsEmpty());
    EXPECT_THAT(mManager->log.lines(), IsEmpty());
}

TEST_F(SmartPenModeCtrl, ListsNoModeForANegativeOrMissingCount) {
    mManager->answer(words({0, -3, 1, 1}));
    EXPECT_THAT(mPen->getSupportSmartPenModeList(), IsEmpty());
    mManager->answer(words({0}));
    EXPECT_THAT(mPen->getSupportSmartPenModeList(), IsEmpty());
}

TEST_F(SmartPenModeCtrl, ReadsModesBehindTheEndOfAShortReplyAsZero) {
    mManager->answer(words({0, 3, 9}));
    EXPECT_THAT(mPen->getSupportSmartPenModeList(),
                ElementsAre(_EnumSmartPenMode(9), _EnumSmartPenMode(0), _EnumSmartPenMode(0)));
}

TEST_F(SmartPenModeCtrl, FallsBackToModeFiveOnAnEmptyReply) {
    mManager->answer(words({-1}));
    EXPECT_EQ(mPen->getSmartPenMode(), 5);
    mManager->answer(words({0}));
    EXPECT_EQ(mPen->getSmartPenMode(), 5);
    const std::vector<LogLine> lines = mManager->log.lines();
    ASSERT_EQ(lines.size(), 4u);
    expectDebugLine(lines[0], "getSmartPenMode", 61, "SmartPenModeCtrl::getSmartPenMode");
    expectDebugLine(lines[1], "getSmartPenMode", 66, "SmartPenModeCtrl::getSmartPenMode failed");
    EXPECT_EQ(lines[3].line, 66);
}

TEST_F(SmartPenModeCtrl, LogsOnlyTheEntryBeforeTheCommandWhenTheModeIsRead) {
    mManager->answer(words({0, 2}));
    EXPECT_EQ(mPen->getSmartPenMode(), 2);
    EXPECT_EQ(mManager->linesBefore, 1u);
    const std::vector<LogLine> lines = mManager->log.lines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].line, 61);
}

TEST_F(SmartPenModeCtrl, LogsTheSettingOfAModeBeforeTheCommand) {
    mPen->setSmartPenMode(_EnumSmartPenMode(3));
    EXPECT_EQ(mManager->linesBefore, 1u);
    const std::vector<LogLine> lines = mManager->log.lines();
    ASSERT_EQ(lines.size(), 1u);
    expectDebugLine(lines[0], "setSmartPenMode", 52, "SmartPenModeCtrl::setSmartPenMode");
}

}  // namespace
