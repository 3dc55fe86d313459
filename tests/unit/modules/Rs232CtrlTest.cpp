#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <string>

#include "modules/Rs232Ctrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::sp;
using android::String16;
using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Matcher;
using namespace tarn::test;

namespace {

Matcher<const LogLine&> failed(int line, const char* function, const std::string& command) {
    return AllOf(Logged(TARN_LOG_ERROR, "Zunt@Rs232Ctrl", function,
                        "exeCmdSet_Parcel:" + command + " error!\n"),
                 Field(&LogLine::line, line));
}

class Rs232Ctrl : public testing::Test {
  protected:
    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::Rs232Ctrl> rs232 = new android::Rs232Ctrl(manager);
};

TEST_F(Rs232Ctrl, LogsTheNameOfTheQueryThatFailed) {
    manager->answer(words({-1, 1, 97}));
    EXPECT_EQ(rs232->getSmartRs232FrontUsb(1), String16());
    EXPECT_EQ(rs232->getSmartRs232SideUsb(1), String16());
    EXPECT_EQ(rs232->getSmartRs232EthMac(1), String16());
    EXPECT_EQ(rs232->getEmmcSize(), String16());
    EXPECT_EQ(rs232->getRamSize(), String16());
    EXPECT_EQ(rs232->getSmartRs232Sdcard(), String16());
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(failed(30, "getSmartRs232FrontUsb", "CMD_RS232_CTRL_GET_FRONT_USB"),
                            failed(68, "getSmartRs232SideUsb", "CMD_RS232_CTRL_GET_SIDE_USB"),
                            failed(82, "getSmartRs232EthMac", "CMD_RS232_CTRL_GET_ETH_MAC"),
                            failed(101, "getEmmcSize", "CMD_RS232_CTRL_GET_EMMC_SIZE"),
                            failed(115, "getRamSize", "CMD_RS232_CTRL_GET_RAM_SIZE"),
                            failed(44, "getSmartRs232Sdcard", "CMD_RS232_CTRL_GET_SD_CARD")));
}

TEST_F(Rs232Ctrl, LogsNothingElse) {
    manager->answer(Reply(0).s16("a"));
    rs232->getSmartRs232FrontUsb(1);
    rs232->getSmartRs232SideUsb(1);
    rs232->getSmartRs232EthMac(1);
    rs232->getEmmcSize();
    rs232->getRamSize();
    rs232->getSmartRs232Sdcard();
    manager->answer(words({-1}));
    rs232->getATRs232TestResult();
    rs232->getSmartRs232PcDet();
    rs232->getSmartRs232PcStatus();
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(Rs232Ctrl, HandsTheServicesTextOnAsItIs) {
    manager->answer(Reply(0).s16(" 59.6 GB\n"));
    EXPECT_EQ(rs232->getEmmcSize(), String16(" 59.6 GB\n"));
}

}  // namespace
