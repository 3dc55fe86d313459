#include <tarn/IDeviceCtrl.h>

#include "protocol/Commands.h"
#include "registry/Builder.h"

using namespace android;

namespace tarnctl {

void registerDeviceCtrl(std::vector<Controller>* registry) {
    Builder<IDeviceCtrl>(registry, "device", "DeviceCtrl", &ITarnManager::getDeviceCtrl)
            .method("getDeviceList", CMD_DEVICE_GET_DEVICE_LIST, &IDeviceCtrl::getDeviceList)
            .method("getSecondDeviceList", CMD_DEVICE_GET_SECOND_DEVICE_LIST,
                    &IDeviceCtrl::getSecondDeviceList)
            .method("getThirdDeviceList", CMD_DEVICE_GET_THIRD_DEVICE_LIST,
                    &IDeviceCtrl::getThirdDeviceList)
            .method("getBoardName", CMD_DEVICE_GET_BOARD_NAME, &IDeviceCtrl::getBoardName)
            .method("getModelName", CMD_DEVICE_GET_MODEL_NAME, &IDeviceCtrl::getModelName)
            .method("setUsbSwitchForSide", CMD_DEVICE_SET_USB_SWITCH_FOR_SIDE,
                    &IDeviceCtrl::setUsbSwitchForSide, "host")
            .method("getUsbSwitchForSide", CMD_DEVICE_GET_USB_SWITCH_FOR_SIDE,
                    &IDeviceCtrl::getUsbSwitchForSide)
            .method("setUsbSwitchForAll", CMD_DEVICE_SET_USB_SWITCH_FOR_ALL,
                    &IDeviceCtrl::setUsbSwitchForAll, "host")
            .method("getUsbSwitchForAll", CMD_DEVICE_GET_USB_SWITCH_FOR_ALL,
                    &IDeviceCtrl::getUsbSwitchForAll)
            .method("setUsbSwitchForTouchIn", CMD_DEVICE_SET_USB_SWITCH_FOR_TOUCH_IN,
                    &IDeviceCtrl::setUsbSwitchForTouchIn, "host")
            .method("getUsbSwitchForTouchIn", CMD_DEVICE_GET_USB_SWITCH_FOR_TOUCH_IN,
                    &IDeviceCtrl::getUsbSwitchForTouchIn)
            .method("setUsbSwitchForPipTouch", CMD_DEVICE_SET_USB_SWITCH_FOR_PIP_TOUCH,
                    &IDeviceCtrl::setUsbSwitchForPipTouch, "host")
            .method("getUsbSwitchForPipTouch", CMD_DEVICE_GET_USB_SWITCH_FOR_PIP_TOUCH,
                    &IDeviceCtrl::getUsbSwitchForPipTouch)
            .method("ctrlDevicePower", CMD_DEVICE_CTRL_DEVICE_POWER, &IDeviceCtrl::ctrlDevicePower,
                    "device, state")
            .method("getUsbPowerStatus", CMD_DEVICE_GET_USB_POWER_STATUS,
                    &IDeviceCtrl::getUsbPowerStatus)
            .method("setUsbPowerStatus", CMD_DEVICE_SET_USB_POWER_STATUS,
                    &IDeviceCtrl::setUsbPowerStatus, "status")
            .method("getNfcTagMsg", CMD_DEVICE_GET_NFC_TAG_MSG, &IDeviceCtrl::getNfcTagMsg)
            .method("setNfcTagMsg", CMD_DEVICE_SET_NFC_TAG_MSG, &IDeviceCtrl::setNfcTagMsg, "msg")
            .method("setUsbSwFollowConfig", CMD_DEVICE_SET_USB_SW_FOLLOW_CONFIG,
                    &IDeviceCtrl::setUsbSwFollowConfig, "config")
            .method("getUsbSwFollowConfig", CMD_DEVICE_GET_USB_SW_FOLLOW_CONFIG,
                    &IDeviceCtrl::getUsbSwFollowConfig);
}

}  // namespace tarnctl
