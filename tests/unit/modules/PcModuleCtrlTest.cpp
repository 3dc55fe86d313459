#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <string>

#include "modules/PcModuleCtrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::_EnumPcBootMode;
using android::sp;
using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Matcher;
using testing::SizeIs;
using namespace tarn::test;

namespace {

Matcher<const LogLine&> pinned(int priority, int line, const char* function,
                               const std::string& message) {
    return AllOf(Logged(priority, "Zunt@PcModuleCtrl", function, message),
                 Field(&LogLine::line, line));
}

class PcModuleCtrl : public testing::Test {
  protected:
    PcModuleCtrl() { manager->log.clear(); }

    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::PcModuleCtrl> module = new android::PcModuleCtrl(manager);
};

TEST_F(PcModuleCtrl, LogsItsConstruction) {
    const sp<android::PcModuleCtrl> another = new android::PcModuleCtrl(manager);
    EXPECT_THAT(manager->log.lines(), ElementsAre(pinned(TARN_LOG_DEBUG, 27, "PcModuleCtrl",
                                                         "PcModuleCtrl::PcModuleCtrl")));
}

TEST_F(PcModuleCtrl, FallsBackToStateZeroOnAnEmptyReply) {
    for (const Bytes& reply : {words({-1, 7}), words({0}), Bytes()}) {
        manager->answer(reply);
        manager->log.clear();
        EXPECT_EQ(module->getPcState(), 0);
        EXPECT_EQ(manager->linesBefore, 1u);
        EXPECT_THAT(manager->log.lines(), ElementsAre(pinned(TARN_LOG_DEBUG, 34, "getPcState",
                                                             "PcModuleCtrl::getPcState"),
                                                      pinned(TARN_LOG_ERROR, 39, "getPcState",
                                                             "PcModuleCtrl::getPcState failed")));
    }
}

TEST_F(PcModuleCtrl, LogsOnlyTheEntryWhenTheStateIsRead) {
    manager->answer(words({0, 2}));
    EXPECT_EQ(module->getPcState(), 2);
    EXPECT_THAT(manager->log.messages(), ElementsAre("PcModuleCtrl::getPcState"));
}

TEST_F(PcModuleCtrl, LogsEachSwitchBeforeItsCommandAndEachFailureAfterIt) {
    manager->answer(words({-1}));
    EXPECT_EQ(module->setPcSwitchOn(), -1);
    EXPECT_EQ(manager->linesBefore, 1u);
    EXPECT_EQ(module->setPcSwitchOff(), -1);
    EXPECT_EQ(manager->linesBefore, 3u);
    EXPECT_EQ(module->setPcRecovery(), -1);
    EXPECT_EQ(manager->linesBefore, 5u);
    EXPECT_THAT(
            manager->log.lines(),
            ElementsAre(
                    pinned(TARN_LOG_DEBUG, 55, "setPcSwitchOn", "PcModuleCtrl::setPcSwitchOn"),
                    pinned(TARN_LOG_ERROR, 58, "setPcSwitchOn",
                           "PcModuleCtrl::setPcSwitchOn failed"),
                    pinned(TARN_LOG_DEBUG, 66, "setPcSwitchOff", "PcModuleCtrl::setPcSwitchOff"),
                    pinned(TARN_LOG_ERROR, 69, "setPcSwitchOff",
                           "PcModuleCtrl::setPcSwitchOff failed"),
                    pinned(TARN_LOG_DEBUG, 77, "setPcRecovery", "PcModuleCtrl::setPcRecovery"),
                    pinned(TARN_LOG_ERROR, 80, "setPcRecovery",
                           "PcModuleCtrl::setPcRecovery failed")));
}

TEST_F(PcModuleCtrl, TakesEveryNegativeStatusOfASwitchForAFailure) {
    manager->answer(words({-5}));
    EXPECT_EQ(module->setPcSwitchOn(), -5);
    EXPECT_EQ(module->setPcSwitchOff(), -5);
    EXPECT_EQ(module->setPcRecovery(), -5);
    EXPECT_THAT(manager->log.lines(), SizeIs(6));
}

TEST_F(PcModuleCtrl, LogsNoFailureForAStatusOfZeroOrMore) {
    for (const int32_t status : {0, 3}) {
        manager->answer(words({status}));
        manager->log.clear();
        EXPECT_EQ(module->setPcSwitchOn(), status);
        EXPECT_EQ(module->setPcSwitchOff(), status);
        EXPECT_EQ(module->setPcRecovery(), status);
        EXPECT_THAT(manager->log.messages(),
                    ElementsAre("PcModuleCtrl::setPcSwitchOn", "PcModuleCtrl::setPcSwitchOff",
                                "PcModuleCtrl::setPcRecovery"));
    }
}

TEST_F(PcModuleCtrl, SendsNoSerialData) {
    unsigned char data[10] = {};
    EXPECT_EQ(module->sendSerialData(data, 10), 0);
    EXPECT_EQ(module->sendSerialData(nullptr, -1), 0);
    EXPECT_THAT(manager->requests(), IsEmpty());
    const auto line = pinned(TARN_LOG_DEBUG, 89, "sendSerialData", "PcModuleCtrl::sendSerialData");
    EXPECT_THAT(manager->log.lines(), ElementsAre(line, line));
}

TEST_F(PcModuleCtrl, LogsEveryModeOfTheList) {
    manager->answer(words({0, 2, 0, 1}));
    EXPECT_THAT(module->getSupportPcBootModeList(),
                ElementsAre(_EnumPcBootMode(0), _EnumPcBootMode(1)));
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(pinned(TARN_LOG_DEBUG, 104, "getSupportPcBootModeList",
                                   "PcModuleCtrl::getSupportPcBootModeList list_cnt:2, val:0"),
                            pinned(TARN_LOG_DEBUG, 104, "getSupportPcBootModeList",
                                   "PcModuleCtrl::getSupportPcBootModeList list_cnt:2, val:1")));
}

TEST_F(PcModuleCtrl, ListsNoModeAndLogsNothingWithoutAPositiveCount) {
    for (const Bytes& reply : {words({-1, 1, 1}), words({0}), words({0, -2, 1, 1}), Bytes()}) {
        manager->answer(reply);
        EXPECT_THAT(module->getSupportPcBootModeList(), IsEmpty());
        EXPECT_THAT(manager->log.lines(), IsEmpty());
    }
}

TEST_F(PcModuleCtrl, ReadsModesBehindTheEndOfAShortReplyAsZero) {
    manager->answer(words({0, 3, 9}));
    EXPECT_THAT(module->getSupportPcBootModeList(),
                ElementsAre(_EnumPcBootMode(9), _EnumPcBootMode(0), _EnumPcBootMode(0)));
}

TEST_F(PcModuleCtrl, LogsTheSettingOfAModeBeforeTheCommand) {
    manager->answer(words({-1}));
    EXPECT_FALSE(module->setPcBootMode(_EnumPcBootMode(1)));
    EXPECT_EQ(manager->linesBefore, 1u);
    EXPECT_THAT(manager->log.lines(), ElementsAre(pinned(TARN_LOG_DEBUG, 113, "setPcBootMode",
                                                         "PcModuleCtrl::setPcBootMode")));
}

TEST_F(PcModuleCtrl, FallsBackToModeThreeOnAnEmptyReplyAndLogsItInTheSettersName) {
    for (const Bytes& reply : {words({-1, 7}), words({0}), Bytes()}) {
        manager->answer(reply);
        manager->log.clear();
        EXPECT_EQ(module->getPcBootMode(), 3);
        EXPECT_EQ(manager->linesBefore, 1u);
        EXPECT_THAT(manager->log.lines(),
                    ElementsAre(pinned(TARN_LOG_DEBUG, 122, "getPcBootMode",
                                       "PcModuleCtrl::setPcBootMode"),
                                pinned(TARN_LOG_DEBUG, 127, "getPcBootMode",
                                       "PcModuleCtrl::setPcBootMode failed")));
    }
}

TEST_F(PcModuleCtrl, LogsOnlyTheEntryWhenTheModeIsRead) {
    manager->answer(words({0, 2}));
    EXPECT_EQ(module->getPcBootMode(), 2);
    EXPECT_THAT(manager->log.messages(), ElementsAre("PcModuleCtrl::setPcBootMode"));
}

}  // namespace
