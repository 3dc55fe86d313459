#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <string>
#include <vector>

#include "modules/SmartPenModeCtrl.h"
#include "tests/support/LogCapture.h"
#include "tests/support/LogWatchingManager.h"
#include "tests/support/RecordingManager.h"

using namespace android;
using tarn::test::LogCapture;
using tarn::test::LogLine;
using tarn::test::LogWatchingManager;
using tarn::test::RecordingManager;
using tarn::test::words;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SmartPenModeCtrl : public testing::Test {
  protected:
    SmartPenModeCtrl()
        : mManager(new RecordingManager), mPen(new android::SmartPenModeCtrl(mManager)) {}

    const sp<RecordingManager> mManager;
    const sp<ISmartPenModeCtrl> mPen;
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
    LogCapture log;
    const sp<ISmartPenModeCtrl> another = new android::SmartPenModeCtrl(mManager);
    ASSERT_EQ(log.lines().size(), 1u);
    expectDebugLine(log.lines()[0], "SmartPenModeCtrl", 29, "SmartPenModeCtrl::SmartPenModeCtrl");
}

TEST_F(SmartPenModeCtrl, LogsEveryModeOfTheList) {
    LogCapture log;
    mManager->answer(words({0, 2, 0, 1}));
    EXPECT_THAT(mPen->getSupportSmartPenModeList(),
                ElementsAre(_EnumSmartPenMode(0), _EnumSmartPenMode(1)));
    ASSERT_EQ(log.lines().size(), 2u);
    expectDebugLine(log.lines()[0], "getSupportSmartPenModeList", 43,
                    "SmartPenModeCtrl::getSupportSmartPenModeList list_cnt:2, val:0");
    expectDebugLine(log.lines()[1], "getSupportSmartPenModeList", 43,
                    "SmartPenModeCtrl::getSupportSmartPenModeList list_cnt:2, val:1");
}

TEST_F(SmartPenModeCtrl, ListsNoModeAndLogsNothingWhenTheServiceIsDead) {
    LogCapture log;
    mManager->answer(words({-1}));
    EXPECT_THAT(mPen->getSupportSmartPenModeList(), IsEmpty());
    EXPECT_THAT(log.lines(), IsEmpty());
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
    LogCapture log;
    mManager->answer(words({-1}));
    EXPECT_EQ(mPen->getSmartPenMode(), 5);
    mManager->answer(words({0}));
    EXPECT_EQ(mPen->getSmartPenMode(), 5);
    ASSERT_EQ(log.lines().size(), 4u);
    expectDebugLine(log.lines()[0], "getSmartPenMode", 61, "SmartPenModeCtrl::getSmartPenMode");
    expectDebugLine(log.lines()[1], "getSmartPenMode", 66,
                    "SmartPenModeCtrl::getSmartPenMode failed");
    EXPECT_EQ(log.lines()[3].line, 66);
}

TEST_F(SmartPenModeCtrl, LogsOnlyTheEntryWhenTheModeIsRead) {
    LogCapture log;
    mManager->answer(words({0, 2}));
    EXPECT_EQ(mPen->getSmartPenMode(), 2);
    ASSERT_EQ(log.lines().size(), 1u);
    EXPECT_EQ(log.lines()[0].line, 61);
}

TEST_F(SmartPenModeCtrl, LogsTheSettingOfAModeBeforeTheCommand) {
    const sp<LogWatchingManager> manager = new LogWatchingManager;
    const sp<ISmartPenModeCtrl> pen = new android::SmartPenModeCtrl(manager);
    manager->log.clear();
    pen->setSmartPenMode(_EnumSmartPenMode(3));
    EXPECT_EQ(manager->linesBefore, 1u);
    ASSERT_EQ(manager->log.lines().size(), 1u);
    expectDebugLine(manager->log.lines()[0], "setSmartPenMode", 52,
                    "SmartPenModeCtrl::setSmartPenMode");
}

}  // namespace
