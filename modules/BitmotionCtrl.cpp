#include "modules/BitmotionCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

// This file has no tag of its own: the log drops its line.
#define TARN_LOG_TAG nullptr
#define TARN_LOG_PINNED
#include "log/Log.h"

namespace android {

BitmotionCtrl::BitmotionCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {
    TLOGI_AT(7, "BitmotionCtrl created.");
}

bool BitmotionCtrl::setBrightness(int brightness) {
    return mTarnMgr->exeCmdSet_Bool(CMD_BITMOTION_SET_BRIGHTNESS, brightness);
}

int BitmotionCtrl::setDevicePortEnabled(const String16& port, bool enabled) {
    Parcel request;
    request.writeString16(port);
    request.writeBool(enabled);
    return mTarnMgr->exeCmdSet_Int(CMD_BITMOTION_SET_DEVICE_PORT_ENABLED, request);
}

int BitmotionCtrl::setWan1Address(const String16& address) {
    return sendText(mTarnMgr, CMD_BITMOTION_SET_WAN1_ADDRESS, address);
}

int BitmotionCtrl::setWan2Address(const String16& address) {
    return sendText(mTarnMgr, CMD_BITMOTION_SET_WAN2_ADDRESS, address);
}

int BitmotionCtrl::updateFirmware(const String16& path) {
    return sendText(mTarnMgr, CMD_BITMOTION_UPDATE_FIRMWARE, path);
}

int BitmotionCtrl::setupWorkMode(int mode) {
    return mTarnMgr->exeCmdSet_Int(CMD_BITMOTION_SETUP_WORK_MODE, mode);
}

int BitmotionCtrl::erase(unsigned int what) {
    return mTarnMgr->exeCmdSet_Int(CMD_BITMOTION_ERASE, static_cast<int>(what));
}

std::string BitmotionCtrl::getVersion() {
    Parcel reply;
    mTarnMgr->exeCmdSet_Parcel(CMD_BITMOTION_GET_VERSION, &reply);
    reply.setDataPosition(0);
    // The service sends one more word in front of the text.
    reply.readInt32();
    return readUtf8(reply);
}

}  // namespace android
