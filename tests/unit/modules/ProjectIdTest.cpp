#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <string>
#include <vector>

#include "modules/ProjectId.h"
#include "tests/support/LogCapture.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/RecordingManager.h"

using android::_EnumProjectId_;
using android::IProjectId;
using android::Parcel;
using android::ProjectId;
using android::sp;
using android::String16;
using tarn::test::Bytes;
using tarn::test::LogCapture;
using tarn::test::Logged;
using tarn::test::RecordingManager;
using tarn::test::Reply;
using tarn::test::words;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Fixture {
    sp<RecordingManager> manager{new RecordingManager};
    sp<ProjectId> projectId{new ProjectId(manager)};
};

void expectOneError(const LogCapture& log, const char* function, const std::string& message) {
    EXPECT_THAT(log.lines(),
                ElementsAre(Logged(TARN_LOG_ERROR, "Zunt@ProjectId", function, message)));
}

}  // namespace

TEST(ProjectId, RefusesUnknownProjectsInTheWordsOfTheSelinuxSetter) {
    for (const int index : {14, -1, 1000}) {
        Fixture f;
        LogCapture log;
        EXPECT_EQ(f.projectId->setProjectIdByIndex(static_cast<_EnumProjectId_>(index)), -1);
        EXPECT_THAT(f.manager->requests(), IsEmpty());
        expectOneError(log, "setProjectIdByIndex", "have no this selinux mode ,set failed !");
    }
}

TEST(ProjectId, SelectsTheFirstAndTheLastProject) {
    Fixture f;
    LogCapture log;
    f.manager->answer(words({-5}));
    EXPECT_EQ(f.projectId->setProjectIdByIndex(android::PROJECT_ID_13), -5);
    EXPECT_EQ(f.projectId->setProjectIdByIndex(android::PROJECT_ID_0), -5);
    EXPECT_THAT(f.manager->requests(), ElementsAre(words({0x401, 13}), words({0x401, 0})));
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST(ProjectId, ReadsAnUnknownProjectAsTheFirstAndLogsTheAnswer) {
    for (const int answer : {20, 14, -1}) {
        Fixture f;
        LogCapture log;
        f.manager->answer(words({answer}));
        EXPECT_EQ(f.projectId->getProjectIdIndex(), android::PROJECT_ID_0);
        expectOneError(log, "getProjectIdIndex",
                       "have no this selinux mode ,set failed !, ret = " + std::to_string(answer));
    }
}

TEST(ProjectId, ReadsTheFirstAndTheLastProjectWithoutALine) {
    Fixture f;
    LogCapture log;
    for (const int answer : {0, 13}) {
        f.manager->answer(words({answer}));
        EXPECT_EQ(f.projectId->getProjectIdIndex(), answer);
    }
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST(ProjectId, ReplacesTheCallersParcelByTheConfigurationSetFromItsStart) {
    Fixture f;
    Parcel cfgs;
    cfgs.writeInt32(77);
    cfgs.writeInt32(78);
    f.manager->answer(words({0, 2, -40}));
    EXPECT_EQ(f.projectId->getProjectIdPqBcshCfgs(&cfgs), 0);
    EXPECT_EQ(cfgs.dataSize(), 8u);
    EXPECT_EQ(cfgs.readInt32(), 2);
    EXPECT_EQ(cfgs.readInt32(), -40);
}

TEST(ProjectId, LeavesTheCallersParcelAloneWhenTheCommandFailedOrNothingCame) {
    Fixture f;
    Parcel cfgs;
    cfgs.writeInt32(77);
    f.manager->answer(words({-1, 5}));
    EXPECT_EQ(f.projectId->getProjectIdDbcCfgs(&cfgs), -1);
    f.manager->answer(Bytes{});
    EXPECT_EQ(f.projectId->getProjectIdDbcCfgs(&cfgs), 0);
    cfgs.setDataPosition(0);
    EXPECT_EQ(cfgs.readInt32(), 77);
    EXPECT_EQ(cfgs.dataSize(), 4u);
}

namespace {

struct UdiskQuery {
    const char* function;
    String16 (IProjectId::*method)();
    const char* error;
};

const UdiskQuery kUdiskQueries[] = {
        {"findUdiskLogoPath", &IProjectId::findUdiskLogoPath,
         "exeCmdSet_Parcel:CMD_PROJECT_ID_FIND_UDISK_LOGO_PATH error!\n"},
        {"findUdiskAnimationPath", &IProjectId::findUdiskAnimationPath,
         "exeCmdSet_Parcel:CMD_PROJECT_ID_FIND_UDISK_ANIMATION_PATH error!\n"},
        {"findUdiskBootVideoPath", &IProjectId::findUdiskBootVideoPath,
         "exeCmdSet_Parcel:CMD_PROJECT_ID_FIND_UDISK_BOOOTVIDEO_PATH error!\n"},
};

}  // namespace

TEST(ProjectId, LogsAFailedSearchOfTheUsbDiskAndGivesNoPath) {
    for (const UdiskQuery& query : kUdiskQueries) {
        SCOPED_TRACE(query.function);
        Fixture f;
        LogCapture log;
        f.manager->answer(Reply(-1).s16("/mnt/usb/x"));
        EXPECT_EQ(((*f.projectId).*query.method)(), String16());
        expectOneError(log, query.function, query.error);
    }
}

TEST(ProjectId, GivesTheFoundPathWithoutALine) {
    for (const UdiskQuery& query : kUdiskQueries) {
        SCOPED_TRACE(query.function);
        Fixture f;
        LogCapture log;
        f.manager->answer(Reply(0).s16("/mnt/usb/x"));
        EXPECT_EQ(((*f.projectId).*query.method)(), String16("/mnt/usb/x"));
        EXPECT_THAT(log.lines(), IsEmpty());
    }
}

TEST(ProjectId, TurnsAnyAnswerOfAPresetButZeroIntoAFailureAndLogsIt) {
    for (const int answer : {1, -1, -5}) {
        Fixture f;
        f.manager->answer(words({answer}));
        {
            LogCapture log;
            EXPECT_EQ(f.projectId->presetApkBlackList(), -1);
            expectOneError(log, "presetApkBlackList",
                           "exeCmdSet_Parcel:CMD_PROJECT_ID_REPLACE_APK_BLACK_LIST error!\n");
        }
        LogCapture log;
        EXPECT_EQ(f.projectId->presetEdidFile(), -1);
        expectOneError(log, "presetEdidFile",
                       "exeCmdSet_Parcel:CMD_PROJECT_ID_PRESET_EDID_FILE error!\n");
    }
}

TEST(ProjectId, GivesAnEmptyTextForFailedShortAndHostileReplies) {
    Fixture f;
    const std::vector<Bytes> replies = {words({-1, 2, 0x00450044, 0}),
                                        words({0}),
                                        Bytes{},
                                        Bytes{0, 0},
                                        words({0, -1}),
                                        words({0, 0x7fffffff}),
                                        words({0, 100, 0x00450044})};
    for (const Bytes& reply : replies) {
        f.manager->answer(reply);
        EXPECT_EQ(f.projectId->getEyePqFixedValue(), String16());
        EXPECT_EQ(f.projectId->getWifiCountryCode(), String16());
        EXPECT_EQ(f.projectId->findUdiskLogoPath(), String16());
    }
}

TEST(ProjectId, LogsNothingElsewhere) {
    Fixture f;
    // An empty text; a missing one would make the platform log a line of its own.
    f.manager->answer(Reply(0).s16(""));
    LogCapture log;
    const sp<ProjectId> another(new ProjectId(f.manager));
    IProjectId& p = *f.projectId;
    Parcel cfgs;
    p.getProjectIdBacklightMax();
    p.getProjectIdBacklightMin();
    p.getProjectIdPqBcshCfgs(&cfgs);
    p.getProjectIdPqWBCfgs(&cfgs);
    p.getProjectIdPqSPGCfgs(&cfgs);
    p.getProjectIdIniPraserDone();
    p.getProjectIdDbcCfgs(&cfgs);
    p.getProjectIdDcrCfgs(&cfgs);
    p.getProjectIdLogoCfgs(&cfgs);
    p.getProjectIdBootVideoCfgs(&cfgs);
    p.getProjectIdBootAnimationCfgs(&cfgs);
    p.setProjectIdReplaceState(1);
    p.getProjectIdReplaceState();
    p.CopyPidfileToBootvideo();
    p.presetApkBlackList();
    p.presetEdidFile();
    p.getEyePqFixedEnable();
    p.getEyePqFixedValue();
    p.getWifiCountryCode();
    EXPECT_EQ(f.manager->requests().size(), 19u);
    EXPECT_THAT(log.lines(), IsEmpty());
}
