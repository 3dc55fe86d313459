#include "modules/AoipCtrl.h"

#include <binder/Parcel.h>

#include "protocol/Commands.h"

namespace android {

AoipCtrl::AoipCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int AoipCtrl::setCallStatus(int status) {
    return mTarnMgr->exeCmdSet_Int(CMD_AOIP_SET_CALL_STATUS, status);
}

int AoipCtrl::setVolume(int volume) {
    return mTarnMgr->exeCmdSet_Int(CMD_AOIP_SET_VOLUME, volume);
}

int AoipCtrl::volumeUp() {
    return mTarnMgr->exeCmdSet_Int(CMD_AOIP_VOLUME_UP);
}

int AoipCtrl::volumeDown() {
    return mTarnMgr->exeCmdSet_Int(CMD_AOIP_VOLUME_DOWN);
}

int AoipCtrl::mute() {
    return mTarnMgr->exeCmdSet_Int(CMD_AOIP_MUTE);
}

int AoipCtrl::unmute() {
    return mTarnMgr->exeCmdSet_Int(CMD_AOIP_UNMUTE);
}

// The command is sent for its effect on the unit; callers rely on the fixed text.
String16 AoipCtrl::listDevices() {
    mTarnMgr->exeCmdSet_Parcel(CMD_AOIP_LIST_DEVICES, nullptr);
    return String16("{}");
}

int AoipCtrl::upgradeFirmware(const String16& first, const String16& second) {
    Parcel request;
    request.writeString16(first);
    request.writeString16(second);
    return mTarnMgr->exeCmdSet_Int(CMD_AOIP_UPGRADE_FIRMWARE, request);
}

int AoipCtrl::getLocalStatus() {
    return mTarnMgr->exeCmdSet_Int(CMD_AOIP_GET_LOCAL_STATUS);
}

int AoipCtrl::testAT() {
    return mTarnMgr->exeCmdSet_Int(CMD_AOIP_TEST_AT);
}

}  // namespace android
