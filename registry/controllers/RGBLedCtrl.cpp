#include <tarn/IRGBLedCtrl.h>

#include "protocol/Commands.h"
#include "registry/Builder.h"

using namespace android;

namespace tarnctl {

void registerRGBLedCtrl(std::vector<Controller>* registry) {
    Builder<IRGBLedCtrl>(registry, "rgbLed", "RGBLedCtrl", &ITarnManager::getRGBLedCtrl)
            .method("setPowerState", CMD_RGB_LED_SET_POWER_STATE, &IRGBLedCtrl::setPowerState,
                    "state")
            .method("setIRInputState", CMD_RGB_LED_SET_IR_INPUT_STATE,
                    &IRGBLedCtrl::setIRInputState)
            .method("setBluetoothState", CMD_RGB_LED_SET_BLUETOOTH_STATE,
                    &IRGBLedCtrl::setBluetoothState, "state")
            .method("setMicrophoneState", CMD_RGB_LED_SET_MICROPHONE_STATE,
                    &IRGBLedCtrl::setMicrophoneState, "state")
            .method("setPowerLedEnableState", CMD_RGB_LED_SET_POWER_LED_ENABLE_STATE,
                    &IRGBLedCtrl::setPowerLedEnableState, "state")
            .method("setLedOtaState", CMD_RGB_LED_SET_LED_OTA_STATE, &IRGBLedCtrl::setLedOtaState,
                    "state")
            .method("setDiagnosisState", CMD_RGB_LED_SET_DIAGNOSIS_STATE,
                    &IRGBLedCtrl::setDiagnosisState, "state")
            .method("setPowerStandbyState", CMD_RGB_LED_SET_POWER_STANDBY_STATE,
                    &IRGBLedCtrl::setPowerStandbyState, "state")
            .method("setLedOn", CMD_RGB_LED_SET_LED_ON, &IRGBLedCtrl::setLedOn, "led")
            .method("setLedOff", CMD_RGB_LED_SET_LED_OFF, &IRGBLedCtrl::setLedOff, "led")
            .method("setVaLedState", CMD_RGB_LED_SET_VA_LED_STATE, &IRGBLedCtrl::setVaLedState,
                    "state")
            .method("getVaLedState", CMD_RGB_LED_GET_VA_LED_STATE, &IRGBLedCtrl::getVaLedState);
}

}  // namespace tarnctl
