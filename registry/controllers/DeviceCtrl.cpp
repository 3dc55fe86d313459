#include <tarn/IDeviceCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerDeviceCtrl(std::vector<Controller>* registry) {
    Builder<IDeviceCtrl> builder(registry, "device", "DeviceCtrl", &ITarnManager::getDeviceCtrl);
    METHOD(getDeviceList, CMD_DEVICE_GET_DEVICE_LIST);
    METHOD(getSecondDeviceList, CMD_DEVICE_GET_SECOND_DEVICE_LIST);
    METHOD(getThirdDeviceList, CMD_DEVICE_GET_THIRD_DEVICE_LIST);
    METHOD(getBoardName, CMD_DEVICE_GET_BOARD_NAME);
    METHOD(getModelName, CMD_DEVICE_GET_MODEL_NAME);
    METHOD(setUsbSwitchForSide, CMD_DEVICE_SET_USB_SWITCH_FOR_SIDE);
    METHOD(getUsbSwitchForSide, CMD_DEVICE_GET_USB_SWITCH_FOR_SIDE);
    METHOD(setUsbSwitchForAll, CMD_DEVICE_SET_USB_SWITCH_FOR_ALL);
    METHOD(getUsbSwitchForAll, CMD_DEVICE_GET_USB_SWITCH_FOR_ALL);
    METHOD(setUsbSwitchForTouchIn, CMD_DEVICE_SET_USB_SWITCH_FOR_TOUCH_IN);
    METHOD(getUsbSwitchForTouchIn, CMD_DEVICE_GET_USB_SWITCH_FOR_TOUCH_IN);
    METHOD(setUsbSwitchForPipTouch, CMD_DEVICE_SET_USB_SWITCH_FOR_PIP_TOUCH);
    METHOD(getUsbSwitchForPipTouch, CMD_DEVICE_GET_USB_SWITCH_FOR_PIP_TOUCH);
    METHOD(ctrlDevicePower, CMD_DEVICE_CTRL_DEVICE_POWER);
    METHOD(getUsbPowerStatus, CMD_DEVICE_GET_USB_POWER_STATUS);
    METHOD(setUsbPowerStatus, CMD_DEVICE_SET_USB_POWER_STATUS);
    METHOD(getNfcTagMsg, CMD_DEVICE_GET_NFC_TAG_MSG);
    METHOD(setNfcTagMsg, CMD_DEVICE_SET_NFC_TAG_MSG);
    METHOD(setUsbSwFollowConfig, CMD_DEVICE_SET_USB_SW_FOLLOW_CONFIG);
    METHOD(getUsbSwFollowConfig, CMD_DEVICE_GET_USB_SW_FOLLOW_CONFIG);
}

}  // namespace tarn::registry
