#include "modules/SourceCtrl.h"

#include "protocol/Commands.h"

namespace android {

SourceCtrl::SourceCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int SourceCtrl::getChannelList() {
    return mTarnMgr->exeCmdSet_Int(CMD_SOURCE_GET_CHANNEL_LIST);
}

int SourceCtrl::getCurInputSource() {
    return mTarnMgr->exeCmdSet_Int(CMD_SOURCE_GET_CUR_INPUT_SOURCE);
}

int SourceCtrl::getInputSourcePlugStatus(int source) {
    return mTarnMgr->exeCmdSet_Int(CMD_SOURCE_GET_PLUG_STATUS, source);
}

int SourceCtrl::getSignalStatusBySource(int source) {
    return mTarnMgr->exeCmdSet_Int(CMD_SOURCE_GET_SIGNAL_STATUS, source);
}

int SourceCtrl::setCurInputSource(int source) {
    return mTarnMgr->exeCmdSet_Int(CMD_SOURCE_SET_CUR_INPUT_SOURCE, source, true);
}

int SourceCtrl::setHdmiRxEdidVersion(int port, int version) {
    return mTarnMgr->exeCmdSet_Int(CMD_SOURCE_SET_HDMI_RX_EDID_VERSION, port, version);
}

int SourceCtrl::getHdmiRxEdidVersion(int port) {
    return mTarnMgr->exeCmdSet_Int(CMD_SOURCE_GET_HDMI_RX_EDID_VERSION, port);
}

int SourceCtrl::setHdmiStandbyEn(bool on) {
    return mTarnMgr->exeCmdSet_Int(CMD_SOURCE_SET_HDMI_STANDBY_EN, on);
}

int SourceCtrl::getHdmiStandbyEn() {
    return mTarnMgr->exeCmdSet_Int(CMD_SOURCE_GET_HDMI_STANDBY_EN);
}

}  // namespace android
