#include "modules/RGBLedCtrl.h"

#include <binder/Parcel.h>

#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@RGBLedCtrl"
#include "log/Log.h"

namespace android {

RGBLedCtrl::RGBLedCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int RGBLedCtrl::setPowerState(int state) {
    return mTarnMgr->exeCmdSet_Int(CMD_RGB_LED_SET_POWER_STATE, state);
}

int RGBLedCtrl::setIRInputState() {
    TLOGD("csclog setIRInputState");
    return mTarnMgr->exeCmdSet_Int(CMD_RGB_LED_SET_IR_INPUT_STATE);
}

int RGBLedCtrl::setBluetoothState(int state) {
    return mTarnMgr->exeCmdSet_Int(CMD_RGB_LED_SET_BLUETOOTH_STATE, state);
}

int RGBLedCtrl::setMicrophoneState(int state) {
    return mTarnMgr->exeCmdSet_Int(CMD_RGB_LED_SET_MICROPHONE_STATE, state);
}

int RGBLedCtrl::setPowerLedEnableState(int state) {
    return mTarnMgr->exeCmdSet_Int(CMD_RGB_LED_SET_POWER_LED_ENABLE_STATE, state);
}

int RGBLedCtrl::setLedOtaState(int state) {
    return mTarnMgr->exeCmdSet_Int(CMD_RGB_LED_SET_LED_OTA_STATE, state);
}

int RGBLedCtrl::setDiagnosisState(int state) {
    return mTarnMgr->exeCmdSet_Int(CMD_RGB_LED_SET_DIAGNOSIS_STATE, state);
}

int RGBLedCtrl::setPowerStandbyState(int state) {
    return mTarnMgr->exeCmdSet_Int(CMD_RGB_LED_SET_POWER_STANDBY_STATE, state);
}

bool RGBLedCtrl::setLedOn(int led) {
    return mTarnMgr->exeCmdSet_Bool(CMD_RGB_LED_SET_LED_ON, led);
}

bool RGBLedCtrl::setLedOff(int led) {
    return mTarnMgr->exeCmdSet_Bool(CMD_RGB_LED_SET_LED_OFF, led);
}

bool RGBLedCtrl::setVaLedState(_EnumVaLedState_ state) {
    return mTarnMgr->exeCmdSet_Bool(CMD_RGB_LED_SET_VA_LED_STATE, state);
}

int RGBLedCtrl::getVaLedState() {
    TLOGD("RGBLedCtrl::getVaLedState");
    Parcel reply;
    mTarnMgr->exeCmdSet_Parcel(CMD_RGB_LED_GET_VA_LED_STATE, &reply);
    if (reply.dataSize() == 0) {
        TLOGD("RGBLedCtrl::getVaLedState failed");
        return 0;
    }
    return reply.readInt32();
}

}  // namespace android
