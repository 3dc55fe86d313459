#include "modules/ProjectId.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@ProjectId"
#include "log/Log.h"

namespace android {

namespace {

bool isProjectId(int index) {
    return index >= PROJECT_ID_0 && index <= PROJECT_ID_13;
}

}  // namespace

ProjectId::ProjectId(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

// The project index is refused in the SELinux setter's words: log readers rely on them.
int ProjectId::setProjectIdByIndex(_EnumProjectId_ index) {
    if (!isProjectId(index)) {
        TLOGE("have no this selinux mode ,set failed !");
        return -1;
    }
    return mTarnMgr->exeCmdSet_Int(CMD_PROJECT_ID_SET_BY_INDEX, index);
}

_EnumProjectId_ ProjectId::getProjectIdIndex() {
    const int index = mTarnMgr->exeCmdSet_Int(CMD_PROJECT_ID_GET_INDEX);
    if (isProjectId(index)) return static_cast<_EnumProjectId_>(index);
    TLOGE("have no this selinux mode ,set failed !, ret = %d", index);
    return PROJECT_ID_0;
}

int ProjectId::getProjectIdBacklightMax() {
    return mTarnMgr->exeCmdSet_Int(CMD_PROJECT_ID_GET_BACKLIGHT_MAX);
}

int ProjectId::getProjectIdBacklightMin() {
    return mTarnMgr->exeCmdSet_Int(CMD_PROJECT_ID_GET_BACKLIGHT_MIN);
}

int ProjectId::getProjectIdPqBcshCfgs(Parcel* cfgs) {
    return mTarnMgr->exeCmdSet_Parcel(CMD_PROJECT_ID_GET_PQ_BCSH_CFGS, cfgs);
}

int ProjectId::getProjectIdPqWBCfgs(Parcel* cfgs) {
    return mTarnMgr->exeCmdSet_Parcel(CMD_PROJECT_ID_GET_PQ_WB_CFGS, cfgs);
}

int ProjectId::getProjectIdPqSPGCfgs(Parcel* cfgs) {
    return mTarnMgr->exeCmdSet_Parcel(CMD_PROJECT_ID_GET_PQ_SPG_CFGS, cfgs);
}

int ProjectId::getProjectIdIniPraserDone() {
    return mTarnMgr->exeCmdSet_Int(CMD_PROJECT_ID_GET_INI_PARSER_DONE);
}

int ProjectId::getProjectIdDbcCfgs(Parcel* cfgs) {
    return mTarnMgr->exeCmdSet_Parcel(CMD_PROJECT_ID_GET_DBC_CFGS, cfgs);
}

int ProjectId::getProjectIdDcrCfgs(Parcel* cfgs) {
    return mTarnMgr->exeCmdSet_Parcel(CMD_PROJECT_ID_GET_DCR_CFGS, cfgs);
}

int ProjectId::getProjectIdLogoCfgs(Parcel* cfgs) {
    return mTarnMgr->exeCmdSet_Parcel(CMD_PROJECT_ID_GET_LOGO_CFGS, cfgs);
}

int ProjectId::getProjectIdBootVideoCfgs(Parcel* cfgs) {
    return mTarnMgr->exeCmdSet_Parcel(CMD_PROJECT_ID_GET_BOOT_VIDEO_CFGS, cfgs);
}

int ProjectId::getProjectIdBootAnimationCfgs(Parcel* cfgs) {
    return mTarnMgr->exeCmdSet_Parcel(CMD_PROJECT_ID_GET_BOOT_ANIMATION_CFGS, cfgs);
}

int ProjectId::setProjectIdReplaceState(int state) {
    return mTarnMgr->exeCmdSet_Int(CMD_PROJECT_ID_SET_REPLACE_STATE, state);
}

int ProjectId::getProjectIdReplaceState() {
    return mTarnMgr->exeCmdSet_Int(CMD_PROJECT_ID_GET_REPLACE_STATE);
}

int ProjectId::CopyPidfileToBootvideo() {
    return mTarnMgr->exeCmdSet_Int(CMD_PROJECT_ID_COPY_PIDFILE_TO_BOOTVIDEO);
}

String16 ProjectId::findUdiskLogoPath() {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_PROJECT_ID_FIND_UDISK_LOGO_PATH, &reply) == 0) {
        return reply.readString16();
    }
    TLOGE("exeCmdSet_Parcel:CMD_PROJECT_ID_FIND_UDISK_LOGO_PATH error!\n");
    return String16();
}

String16 ProjectId::findUdiskAnimationPath() {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_PROJECT_ID_FIND_UDISK_ANIMATION_PATH, &reply) == 0) {
        return reply.readString16();
    }
    TLOGE("exeCmdSet_Parcel:CMD_PROJECT_ID_FIND_UDISK_ANIMATION_PATH error!\n");
    return String16();
}

String16 ProjectId::findUdiskBootVideoPath() {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_PROJECT_ID_FIND_UDISK_BOOOTVIDEO_PATH, &reply) == 0) {
        return reply.readString16();
    }
    TLOGE("exeCmdSet_Parcel:CMD_PROJECT_ID_FIND_UDISK_BOOOTVIDEO_PATH error!\n");
    return String16();
}

int ProjectId::presetApkBlackList() {
    if (mTarnMgr->exeCmdSet_Int(CMD_PROJECT_ID_REPLACE_APK_BLACK_LIST) == 0) return 0;
    TLOGE("exeCmdSet_Parcel:CMD_PROJECT_ID_REPLACE_APK_BLACK_LIST error!\n");
    return -1;
}

int ProjectId::presetEdidFile() {
    if (mTarnMgr->exeCmdSet_Int(CMD_PROJECT_ID_PRESET_EDID_FILE) == 0) return 0;
    TLOGE("exeCmdSet_Parcel:CMD_PROJECT_ID_PRESET_EDID_FILE error!\n");
    return -1;
}

bool ProjectId::getEyePqFixedEnable() {
    return mTarnMgr->exeCmdSet_Bool(CMD_PROJECT_ID_GET_EYE_PQ_FIXED_ENABLE);
}

String16 ProjectId::getEyePqFixedValue() {
    return askForText(mTarnMgr, CMD_PROJECT_ID_GET_EYE_PQ_FIXED_VALUE);
}

String16 ProjectId::getWifiCountryCode() {
    return askForText(mTarnMgr, CMD_PROJECT_ID_GET_WIFI_COUNTRY_CODE);
}

}  // namespace android
