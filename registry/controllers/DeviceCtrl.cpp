#include <tarn/IDeviceCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerDeviceCtrl(std::vector<Controller>* registry) {
    Builder<IDeviceCtrl>(registry, "device", "DeviceCtrl", &ITarnManager::getDeviceCtrl)
            .method("getDeviceList", Row::CMD_DEVICE_GET_DEVICE_LIST, &IDeviceCtrl::getDeviceList)
            .method("getSecondDeviceList", Row::CMD_DEVICE_GET_SECOND_DEVICE_LIST,
                    &IDeviceCtrl::getSecondDeviceList)
            .method("getThirdDeviceList", Row::CMD_DEVICE_GET_THIRD_DEVICE_LIST,
                    &IDeviceCtrl::getThirdDeviceList)
            .method("getBoardName", Row::CMD_DEVICE_GET_BOARD_NAME, &IDeviceCtrl::getBoardName)
            .method("getModelName", Row::CMD_DEVICE_GET_MODEL_NAME, &IDeviceCtrl::getModelName)
            .method("setUsbSwitchForSide", Row::CMD_DEVICE_SET_USB_SWITCH_FOR_SIDE,
                    &IDeviceCtrl::setUsbSwitchForSide, "host")
            .method("getUsbSwitchForSide", Row::CMD_DEVICE_GET_USB_SWITCH_FOR_SIDE,
                    &IDeviceCtrl::getUsbSwitchForSide)
            .method("setUsbSwitchForAll", Row::CMD_DEVICE_SET_USB_SWITCH_FOR_ALL,
                    &IDeviceCtrl::setUsbSwitchForAll, "host")
            .method("getUsbSwitchForAll", Row::CMD_DEVICE_GET_USB_SWITCH_FOR_ALL,
                    &IDeviceCtrl::getUsbSwitchForAll)
            .method("setUsbSwitchForTouchIn", Row::CMD_DEVICE_SET_USB_SWITCH_FOR_TOUCH_IN,
                    &IDeviceCtrl::setUsbSwitchForTouchIn, "host")
            .method("getUsbSwitchForTouchIn", Row::CMD_DEVICE_GET_USB_SWITCH_FOR_TOUCH_IN,
                    &IDeviceCtrl::getUsbSwitchForTouchIn)
            .method("setUsbSwitchForPipTouch", Row::CMD_DEVICE_SET_USB_SWITCH_FOR_PIP_TOUCH,
                    &IDeviceCtrl::setUsbSwitchForPipTouch, "host")
            .method("getUsbSwitchForPipTouch", Row::CMD_DEVICE_GET_USB_SWITCH_FOR_PIP_TOUCH,
                    &IDeviceCtrl::getUsbSwitchForPipTouch)
            .method("ctrlDevicePower", Row::CMD_DEVICE_CTRL_DEVICE_POWER,
                    &IDeviceCtrl::ctrlDevicePower, "device, state")
            .method("getUsbPowerStatus", Row::CMD_DEVICE_GET_USB_POWER_STATUS,
                    &IDeviceCtrl::getUsbPowerStatus)
            .method("setUsbPowerStatus", Row::CMD_DEVICE_SET_USB_POWER_STATUS,
                    &IDeviceCtrl::setUsbPowerStatus, "status")
            .method("getNfcTagMsg", Row::CMD_DEVICE_GET_NFC_TAG_MSG, &IDeviceCtrl::getNfcTagMsg)
            .method("setNfcTagMsg", Row::CMD_DEVICE_SET_NFC_TAG_MSG, &IDeviceCtrl::setNfcTagMsg,
                    "msg")
            .method("setUsbSwFollowConfig", Row::CMD_DEVICE_SET_USB_SW_FOLLOW_CONFIG,
                    &IDeviceCtrl::setUsbSwFollowConfig, "config")
            .method("getUsbSwFollowConfig", Row::CMD_DEVICE_GET_USB_SW_FOLLOW_CONFIG,
                    &IDeviceCtrl::getUsbSwFollowConfig);
}

}  // namespace tarn::registry
