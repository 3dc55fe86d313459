#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <string>
#include <vector>

#include "modules/ExtendDisplayCtrl.h"
#include "tests/support/LogCapture.h"
#include "tests/support/RecordingManager.h"

using android::IExtendDisplayCtrl;
using android::sp;
using android::String16;
using tarn::test::LogCapture;
using tarn::test::LogLine;
using tarn::test::RecordingManager;
using tarn::test::Reply;
using tarn::test::words;

namespace {

using Texts = std::vector<std::string>;

class ExtendDisplayCtrl : public ::testing::Test {
  protected:
    void expectOnlyLine(const std::string& function, const std::string& message) {
        const std::vector<LogLine> lines = log.lines();
        ASSERT_EQ(lines.size(), 1u);
        EXPECT_EQ(lines[0].priority, TARN_LOG_ERROR);
        EXPECT_EQ(lines[0].tag, "Zunt@ExtendDisplayCtrl");
        EXPECT_EQ(lines[0].function, function);
        EXPECT_EQ(lines[0].message, message);
    }

    sp<RecordingManager> manager = new RecordingManager;
    const sp<IExtendDisplayCtrl> display = new android::ExtendDisplayCtrl(manager);
    LogCapture log;
};

}  // namespace

TEST_F(ExtendDisplayCtrl, LogsAResolutionThatCannotBeRead) {
    manager->answer(Reply(-1).s16("1920x1080"));
    EXPECT_EQ(display->getExtendDisplayResolution(), String16());
    expectOnlyLine("getExtendDisplayResolution",
                   "exeCmdSet_Parcel:CMD_EXTENDDISPLAY_CTRL_GET_RESOLUTION error!\n");
}

TEST_F(ExtendDisplayCtrl, LogsAColorFormatThatCannotBeRead) {
    manager->answer(Reply(-1).s16("RGB"));
    EXPECT_EQ(display->getExtendDisplayColorFormat(), String16());
    expectOnlyLine("getExtendDisplayColorFormat",
                   "exeCmdSet_Parcel:CMD_EXTENDDISPLAY_CTRL_GET_COLOR_FORMAT error!\n");
}

TEST_F(ExtendDisplayCtrl, LogsAResolutionListThatCannotBeRead) {
    manager->answer(Reply(-1).i32(1).s16("1920x1080"));
    EXPECT_EQ(display->getExtendDisplayUserResolutionList(), Texts());
    expectOnlyLine("getExtendDisplayUserResolutionList",
                   "exeCmdSet_Parcel:CMD_EXTENDDISPLAY_CTRL_GET_USER_RESOLUTION_LIST error!\n");
}

TEST_F(ExtendDisplayCtrl, LogsAColorFormatListThatCannotBeRead) {
    manager->answer(Reply(-1).i32(1).s16("RGB"));
    EXPECT_EQ(display->getExtendDisplaySuportColorFormatList(), Texts());
    expectOnlyLine("getExtendDisplaySuportColorFormatList",
                   "exeCmdSet_Parcel:CMD_EXTENDDISPLAY_CTRL_GET_SUPORT_COLOR_FORMAT_LIST error!\n");
}

TEST_F(ExtendDisplayCtrl, ReadsAnEmptyListWithoutAnErrorLine) {
    manager->answer(words({0, 0}));
    EXPECT_EQ(display->getExtendDisplayUserResolutionList(), Texts());
    EXPECT_EQ(display->getExtendDisplaySuportColorFormatList(), Texts());
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(ExtendDisplayCtrl, ReadsListsInTheirOrderAsUtf8) {
    manager->answer(Reply(0).i32(3).s16("1920x1080").s16("3840 \xc3\x97 2160").s16(""));
    const Texts expected{"1920x1080", "3840 \xc3\x97 2160", ""};
    EXPECT_EQ(display->getExtendDisplayUserResolutionList(), expected);
    EXPECT_EQ(display->getExtendDisplaySuportColorFormatList(), expected);
}

TEST_F(ExtendDisplayCtrl, TrustsACountBeyondTheReply) {
    manager->answer(Reply(0).i32(1000).s16("RGB"));
    Texts expected(1000);
    expected[0] = "RGB";
    EXPECT_EQ(display->getExtendDisplayUserResolutionList(), expected);
    EXPECT_EQ(display->getExtendDisplaySuportColorFormatList(), expected);
}

TEST_F(ExtendDisplayCtrl, ReadsANegativeCountAsEmpty) {
    manager->answer(Reply(0).i32(-3).s16("RGB"));
    EXPECT_EQ(display->getExtendDisplayUserResolutionList(), Texts());
    EXPECT_EQ(display->getExtendDisplaySuportColorFormatList(), Texts());
}

TEST_F(ExtendDisplayCtrl, LogsOnlyReadersThatFail) {
    manager->answer(words({-1}));
    display->getTypecOutHDCPStatus();
    display->setTypecOutHDCPStatus(1);
    display->getExtendDisplayHDCPStatus();
    display->setExtendDisplayHDCPStatus(1);
    display->setExtendDisplayEnabled(1);
    display->setExtendDisplayEnabled_p2(1, 1);
    display->getExtendDisplayEnabled();
    display->setHdmiInOutEnabled(true);
    display->getHdmiInOutEnabled();
    display->setExtendDisplayResolution(String16("1920x1080"));
    display->setExtendDisplayColorFormat(String16("RGB"));

    manager->answer(Reply(-5).s16("RGB"));
    display->getExtendDisplayResolution();
    display->getExtendDisplayColorFormat();
    manager->answer(Reply(-5).i32(1).s16("RGB"));
    display->getExtendDisplayUserResolutionList();
    display->getExtendDisplaySuportColorFormatList();

    EXPECT_EQ(manager->requests().size(), 15u);
    EXPECT_TRUE(log.lines().empty());
}
