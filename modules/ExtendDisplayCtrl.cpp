#include "modules/ExtendDisplayCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@ExtendDisplayCtrl"
#include "log/Log.h"

namespace android {

ExtendDisplayCtrl::ExtendDisplayCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int ExtendDisplayCtrl::getTypecOutHDCPStatus() {
    return mTarnMgr->exeCmdSet_Int(CMD_EXTENDDISPLAY_CTRL_GET_TYPEC_OUT_HDCP_STATUS);
}

int ExtendDisplayCtrl::setTypecOutHDCPStatus(int status) {
    return mTarnMgr->exeCmdSet_Int(CMD_EXTENDDISPLAY_CTRL_SET_TYPEC_OUT_HDCP_STATUS, status);
}

int ExtendDisplayCtrl::getExtendDisplayHDCPStatus() {
    return mTarnMgr->exeCmdSet_Int(CMD_EXTENDDISPLAY_CTRL_GET_HDCP_STATUS);
}

int ExtendDisplayCtrl::setExtendDisplayHDCPStatus(int status) {
    return mTarnMgr->exeCmdSet_Int(CMD_EXTENDDISPLAY_CTRL_SET_HDCP_STATUS, status);
}

int ExtendDisplayCtrl::setExtendDisplayEnabled(int enabled) {
    return mTarnMgr->exeCmdSet_Int(CMD_EXTENDDISPLAY_CTRL_SET_ENABLED, enabled);
}

int ExtendDisplayCtrl::setExtendDisplayEnabled_p2(int selector, int enabled) {
    return mTarnMgr->exeCmdSet_Int(CMD_EXTENDDISPLAY_CTRL_SET_ENABLED_P2, selector, enabled);
}

int ExtendDisplayCtrl::getExtendDisplayEnabled() {
    return mTarnMgr->exeCmdSet_Int(CMD_EXTENDDISPLAY_CTRL_GET_ENABLED);
}

int ExtendDisplayCtrl::setHdmiInOutEnabled(bool on) {
    return mTarnMgr->exeCmdSet_Int(CMD_EXTENDDISPLAY_CTRL_SET_HDMI_IN_OUT_ENABLED,
                                   static_cast<int>(on));
}

int ExtendDisplayCtrl::getHdmiInOutEnabled() {
    return mTarnMgr->exeCmdSet_Int(CMD_EXTENDDISPLAY_CTRL_GET_HDMI_IN_OUT_ENABLED);
}

std::vector<std::string> ExtendDisplayCtrl::getExtendDisplayUserResolutionList() {
    std::vector<std::string> resolutions;
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_EXTENDDISPLAY_CTRL_GET_USER_RESOLUTION_LIST, &reply) != 0) {
        TLOGE("exeCmdSet_Parcel:CMD_EXTENDDISPLAY_CTRL_GET_USER_RESOLUTION_LIST error!\n");
        return resolutions;
    }
    readList(reply, 1, readUtf8, &resolutions);
    return resolutions;
}

int ExtendDisplayCtrl::setExtendDisplayResolution(const String16& resolution) {
    return sendText(mTarnMgr, CMD_EXTENDDISPLAY_CTRL_SET_RESOLUTION, resolution);
}

String16 ExtendDisplayCtrl::getExtendDisplayResolution() {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_EXTENDDISPLAY_CTRL_GET_RESOLUTION, &reply) != 0) {
        TLOGE("exeCmdSet_Parcel:CMD_EXTENDDISPLAY_CTRL_GET_RESOLUTION error!\n");
        return String16();
    }
    return reply.readString16();
}

String16 ExtendDisplayCtrl::getExtendDisplayColorFormat() {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_EXTENDDISPLAY_CTRL_GET_COLOR_FORMAT, &reply) != 0) {
        TLOGE("exeCmdSet_Parcel:CMD_EXTENDDISPLAY_CTRL_GET_COLOR_FORMAT error!\n");
        return String16();
    }
    return reply.readString16();
}

int ExtendDisplayCtrl::setExtendDisplayColorFormat(const String16& format) {
    return sendText(mTarnMgr, CMD_EXTENDDISPLAY_CTRL_SET_COLOR_FORMAT, format);
}

std::vector<std::string> ExtendDisplayCtrl::getExtendDisplaySuportColorFormatList() {
    std::vector<std::string> formats;
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_EXTENDDISPLAY_CTRL_GET_SUPORT_COLOR_FORMAT_LIST, &reply) !=
        0) {
        TLOGE("exeCmdSet_Parcel:CMD_EXTENDDISPLAY_CTRL_GET_SUPORT_COLOR_FORMAT_LIST error!\n");
        return formats;
    }
    readList(reply, 1, readUtf8, &formats);
    return formats;
}

}  // namespace android
