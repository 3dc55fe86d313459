#include <tarn/IRGBLedCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerRGBLedCtrl(std::vector<Controller>* registry) {
    Builder<IRGBLedCtrl> builder(registry, "rgbLed", "RGBLedCtrl", &ITarnManager::getRGBLedCtrl);
    METHOD(setPowerState, CMD_RGB_LED_SET_POWER_STATE);
    METHOD(setIRInputState, CMD_RGB_LED_SET_IR_INPUT_STATE);
    METHOD(setBluetoothState, CMD_RGB_LED_SET_BLUETOOTH_STATE);
    METHOD(setMicrophoneState, CMD_RGB_LED_SET_MICROPHONE_STATE);
    METHOD(setPowerLedEnableState, CMD_RGB_LED_SET_POWER_LED_ENABLE_STATE);
    METHOD(setLedOtaState, CMD_RGB_LED_SET_LED_OTA_STATE);
    METHOD(setDiagnosisState, CMD_RGB_LED_SET_DIAGNOSIS_STATE);
    METHOD(setPowerStandbyState, CMD_RGB_LED_SET_POWER_STANDBY_STATE);
    METHOD(setLedOn, CMD_RGB_LED_SET_LED_ON);
    METHOD(setLedOff, CMD_RGB_LED_SET_LED_OFF);
    METHOD(setVaLedState, CMD_RGB_LED_SET_VA_LED_STATE);
    METHOD(getVaLedState, CMD_RGB_LED_GET_VA_LED_STATE);
}

}  // namespace tarn::registry
