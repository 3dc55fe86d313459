#include <tarn/IRGBLedCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerRGBLedCtrl(std::vector<Controller>* registry) {
    Builder<IRGBLedCtrl>(registry, "rgbLed", "RGBLedCtrl", &ITarnManager::getRGBLedCtrl)
            .method("setPowerState", Row::CMD_RGB_LED_SET_POWER_STATE, &IRGBLedCtrl::setPowerState,
                    "state")
            .method("setIRInputState", Row::CMD_RGB_LED_SET_IR_INPUT_STATE,
                    &IRGBLedCtrl::setIRInputState)
            .method("setBluetoothState", Row::CMD_RGB_LED_SET_BLUETOOTH_STATE,
                    &IRGBLedCtrl::setBluetoothState, "state")
            .method("setMicrophoneState", Row::CMD_RGB_LED_SET_MICROPHONE_STATE,
                    &IRGBLedCtrl::setMicrophoneState, "state")
            .method("setPowerLedEnableState", Row::CMD_RGB_LED_SET_POWER_LED_ENABLE_STATE,
                    &IRGBLedCtrl::setPowerLedEnableState, "state")
            .method("setLedOtaState", Row::CMD_RGB_LED_SET_LED_OTA_STATE,
                    &IRGBLedCtrl::setLedOtaState, "state")
            .method("setDiagnosisState", Row::CMD_RGB_LED_SET_DIAGNOSIS_STATE,
                    &IRGBLedCtrl::setDiagnosisState, "state")
            .method("setPowerStandbyState", Row::CMD_RGB_LED_SET_POWER_STANDBY_STATE,
                    &IRGBLedCtrl::setPowerStandbyState, "state")
            .method("setLedOn", Row::CMD_RGB_LED_SET_LED_ON, &IRGBLedCtrl::setLedOn, "led")
            .method("setLedOff", Row::CMD_RGB_LED_SET_LED_OFF, &IRGBLedCtrl::setLedOff, "led")
            .method("setVaLedState", Row::CMD_RGB_LED_SET_VA_LED_STATE, &IRGBLedCtrl::setVaLedState,
                    "state")
            .method("getVaLedState", Row::CMD_RGB_LED_GET_VA_LED_STATE,
                    &IRGBLedCtrl::getVaLedState);
}

}  // namespace tarn::registry
