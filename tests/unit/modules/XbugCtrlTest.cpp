#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include "modules/XbugCtrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::sp;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

class XbugCtrl : public testing::Test {
  protected:
    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::XbugCtrl> xbug = new android::XbugCtrl(manager);
    const LogCapture& log = manager->log;
};

TEST_F(XbugCtrl, ReadsTheNodeInfoAsUtf8) {
    manager->answer(Reply(-5).s16("\xc3\xa9\xe4\xb8\xad"));
    EXPECT_EQ(xbug->getNodeInfo("mcu"), "\xc3\xa9\xe4\xb8\xad");
    EXPECT_EQ(manager->requests().back(), hex("07020000 03000000 6d006300 75000000"));
}

TEST_F(XbugCtrl, ReturnsAnEmptyNodeInfoForAShortReplyOrADeadService) {
    for (const Bytes& reply : {Reply(-1).s16("ok").bytes(), words({0}), Bytes()}) {
        manager->answer(reply);
        EXPECT_EQ(xbug->getNodeInfo("mcu"), "");
    }
}

TEST_F(XbugCtrl, ReturnsAnEmptyNodeInfoForATextLongerThanItsReply) {
    for (const int length : {0x7fffffff, 100, -2}) {
        manager->answer(words({0, length, 0x00410041}));
        EXPECT_EQ(xbug->getNodeInfo("mcu"), "") << length;
    }
}

TEST_F(XbugCtrl, LogsEachQuestionForANodeBeforeItAsks) {
    manager->answer(Reply(0).s16("ok"));
    xbug->getNodeInfo("mcu");
    EXPECT_THAT(log.lines(), ElementsAre(Logged(TARN_LOG_DEBUG, "Zunt@XbugCtrl", "getNodeInfo",
                                                "XbugCtrl::getNodeInfo")));
    EXPECT_EQ(manager->linesBefore, 1u);
}

TEST_F(XbugCtrl, LogsNothingElse) {
    manager->answer(words({-1}));
    xbug->setTarnServiceLogLevel(TARN_LOG_INFO);
    xbug->getTarnServiceLogLevel(1);
    xbug->sendMcuCmdDumpZUNTLog();
    xbug->setTarnFuntionChkBaseTime(1);
    xbug->getTarnFuntionChkBaseTime();
    xbug->getTarnFuntionTimeOutList();
    EXPECT_EQ(manager->requests().size(), 6u);
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(XbugCtrl, LeavesTheLibrarysOwnLogLevelAlone) {
    const int before = getLogLevel(2);
    xbug->setTarnServiceLogLevel(TARN_LOG_FATAL);
    EXPECT_EQ(getLogLevel(2), before);
    EXPECT_EQ(manager->requests().back(), hex("01020000 07000000"));
}

}  // namespace
