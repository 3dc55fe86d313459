#include "modules/DeviceCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@DeviceCtrl"
#include "log/Log.h"

namespace android {

namespace {

int setUsbSwitch(const sp<TarnManager>& manager, int cmd, int host) {
    Parcel request;
    request.writeInt32(host);
    return sendForIntUnlessFailed(manager, cmd, request);
}

/** Here the second integer of the reply counts, in a setter's reply the first. */
int getUsbSwitch(const sp<TarnManager>& manager, int cmd) {
    Parcel reply;
    if (manager->exeCmdSet_Parcel(cmd, &reply) == -1) return -1;
    reply.readInt32();
    return reply.readInt32();
}

}  // namespace

DeviceCtrl::DeviceCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int DeviceCtrl::getDeviceList() {
    return mTarnMgr->exeCmdSet_Int(CMD_DEVICE_GET_DEVICE_LIST);
}

int DeviceCtrl::getSecondDeviceList() {
    return mTarnMgr->exeCmdSet_Int(CMD_DEVICE_GET_SECOND_DEVICE_LIST);
}

int DeviceCtrl::getThirdDeviceList() {
    return mTarnMgr->exeCmdSet_Int(CMD_DEVICE_GET_THIRD_DEVICE_LIST);
}

String16 DeviceCtrl::getBoardName() {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_DEVICE_GET_BOARD_NAME, &reply) != 0) {
        // The text names another command; it is fixed.
        TLOGE("exeCmdSet_Parcel:CMD_AT_CFG_CTRL_READ_WVKEYBOX error!\n");
        return String16();
    }
    return reply.readString16();
}

String16 DeviceCtrl::getModelName() {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_DEVICE_GET_MODEL_NAME, &reply) != 0) {
        TLOGE("exeCmdSet_Parcel:CMD_DEVICE_GET_MODEL_NAME error!\n");
        return String16();
    }
    return reply.readString16();
}

int DeviceCtrl::setUsbSwitchForSide(int host) {
    return setUsbSwitch(mTarnMgr, CMD_DEVICE_SET_USB_SWITCH_FOR_SIDE, host);
}

int DeviceCtrl::getUsbSwitchForSide() {
    return getUsbSwitch(mTarnMgr, CMD_DEVICE_GET_USB_SWITCH_FOR_SIDE);
}

int DeviceCtrl::setUsbSwitchForAll(int host) {
    return setUsbSwitch(mTarnMgr, CMD_DEVICE_SET_USB_SWITCH_FOR_ALL, host);
}

int DeviceCtrl::getUsbSwitchForAll() {
    return getUsbSwitch(mTarnMgr, CMD_DEVICE_GET_USB_SWITCH_FOR_ALL);
}

int DeviceCtrl::setUsbSwitchForTouchIn(int host) {
    return setUsbSwitch(mTarnMgr, CMD_DEVICE_SET_USB_SWITCH_FOR_TOUCH_IN, host);
}

int DeviceCtrl::getUsbSwitchForTouchIn() {
    return getUsbSwitch(mTarnMgr, CMD_DEVICE_GET_USB_SWITCH_FOR_TOUCH_IN);
}

int DeviceCtrl::setUsbSwitchForPipTouch(int host) {
    return setUsbSwitch(mTarnMgr, CMD_DEVICE_SET_USB_SWITCH_FOR_PIP_TOUCH, host);
}

int DeviceCtrl::getUsbSwitchForPipTouch() {
    return getUsbSwitch(mTarnMgr, CMD_DEVICE_GET_USB_SWITCH_FOR_PIP_TOUCH);
}

int DeviceCtrl::ctrlDevicePower(int device, int state) {
    return mTarnMgr->exeCmdSet_Int(CMD_DEVICE_CTRL_DEVICE_POWER, device, state);
}

int DeviceCtrl::getUsbPowerStatus() {
    const int status = mTarnMgr->exeCmdSet_Int(CMD_DEVICE_GET_USB_POWER_STATUS);
    TLOGD("getUsbPowerStatus:%d", status);
    return status;
}

bool DeviceCtrl::setUsbPowerStatus(_EnumUsbPowerStatus status) {
    TLOGD("setUsbPowerStatus:%d", status);
    return mTarnMgr->exeCmdSet_Bool(CMD_DEVICE_SET_USB_POWER_STATUS, status);
}

String16 DeviceCtrl::getNfcTagMsg() {
    return askForTextUnlessFailed(mTarnMgr, CMD_DEVICE_GET_NFC_TAG_MSG);
}

bool DeviceCtrl::setNfcTagMsg(String16 msg) {
    return sendForBoolUnlessFailed(mTarnMgr, CMD_DEVICE_SET_NFC_TAG_MSG, msg);
}

bool DeviceCtrl::setUsbSwFollowConfig(_EnumUsbSWFollowConfig config) {
    TLOGD("setUsbSwFollowConfig:%d", config);
    return mTarnMgr->exeCmdSet_Bool(CMD_DEVICE_SET_USB_SW_FOLLOW_CONFIG, config);
}

int DeviceCtrl::getUsbSwFollowConfig() {
    const int config = mTarnMgr->exeCmdSet_Int(CMD_DEVICE_GET_USB_SW_FOLLOW_CONFIG);
    TLOGD("getUsbSwFollowConfig:%d", config);
    return config;
}

}  // namespace android
