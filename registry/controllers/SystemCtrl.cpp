#include <tarn/ISystemCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerSystemCtrl(std::vector<Controller>* registry) {
    Builder<ISystemCtrl>(registry, "system", "SystemCtrl", &ITarnManager::getSystemCtrl)
            .method("setSelinuxMode", Row::CMD_SYSTEM_SET_SELINUX_MODE,
                    &ISystemCtrl::setSelinuxMode, "mode")
            .method("getSelinuxMode", Row::CMD_SYSTEM_GET_SELINUX_MODE,
                    &ISystemCtrl::getSelinuxMode)
            .method("setTempThreshold", Row::CMD_SYSTEM_SET_TEMP_THRESHOLD,
                    &ISystemCtrl::setTempThreshold, "type, threshold")
            .method("getTempThreshold", Row::CMD_SYSTEM_GET_TEMP_THRESHOLD,
                    &ISystemCtrl::getTempThreshold, "type")
            .method("setOtaUpgradeStatus", Row::CMD_SYSTEM_SET_OTA_UPGRADE_STATUS,
                    &ISystemCtrl::setOtaUpgradeStatus, "status")
            .method("getOtaUpgradeStatus", Row::CMD_SYSTEM_GET_OTA_UPGRADE_STATUS,
                    &ISystemCtrl::getOtaUpgradeStatus)
            .method("setFactoryResetStatus", Row::CMD_SYSTEM_SET_FACTORY_RESET_STATUS,
                    &ISystemCtrl::setFactoryResetStatus, "status")
            .method("getFactoryResetStatus", Row::CMD_SYSTEM_GET_FACTORY_RESET_STATUS,
                    &ISystemCtrl::getFactoryResetStatus)
            .method("getSystemSetting", Row::CMD_SYSTEM_GET_SYSTEM_SETTING,
                    &ISystemCtrl::getSystemSetting)
            .method("replaceBootLogo", Row::CMD_SYSTEM_REPLACE_BOOT_LOGO,
                    &ISystemCtrl::replaceBootLogo, "path")
            .method("resetBootLogo", Row::CMD_SYSTEM_RESET_BOOT_LOGO, &ISystemCtrl::resetBootLogo)
            .method("replaceBootAnimation", Row::CMD_SYSTEM_REPLACE_BOOT_ANIMATION,
                    &ISystemCtrl::replaceBootAnimation, "path")
            .method("replaceBootVideo", Row::CMD_SYSTEM_REPLACE_BOOT_VIDEO,
                    &ISystemCtrl::replaceBootVideo, "path")
            .method("getCPUtemperature", Row::CMD_SYSTEM_GET_CPU_TEMPERATURE,
                    &ISystemCtrl::getCPUtemperature)
            .method("isCtsRunning", Row::CMD_SYSTEM_IS_CTS_RUNNING, &ISystemCtrl::isCtsRunning)
            .method("setCtsRunning", Row::CMD_SYSTEM_SET_CTS_RUNNING, &ISystemCtrl::setCtsRunning,
                    "running")
            .method("setDebugUartSwitch", Row::CMD_SYSTEM_SET_DEBUG_UART_SWITCH,
                    &ISystemCtrl::setDebugUartSwitch, "state")
            .method("getDebugUartSwitch", Row::CMD_SYSTEM_GET_DEBUG_UART_SWITCH,
                    &ISystemCtrl::getDebugUartSwitch)
            .method("setAlarmTime", Row::CMD_SYSTEM_SET_ALARM_TIME, &ISystemCtrl::setAlarmTime,
                    "time")
            .method("setIrInPort", Row::CMD_SYSTEM_SET_IR_IN_PORT, &ISystemCtrl::setIrInPort,
                    "port")
            .method("getIrInPort", Row::CMD_SYSTEM_GET_IR_IN_PORT, &ISystemCtrl::getIrInPort)
            .method("getDeviceAVBState", Row::CMD_SYSTEM_GET_DEVICE_AVB_STATE,
                    &ISystemCtrl::getDeviceAVBState)
            .method("setDeviceAVBState", Row::CMD_SYSTEM_SET_DEVICE_AVB_STATE,
                    &ISystemCtrl::setDeviceAVBState, "on")
            .method("setUsbAdbState", Row::CMD_SYSTEM_SET_USB_ADB_STATE,
                    &ISystemCtrl::setUsbAdbState, "on")
            .method("getUsbAdbState", Row::CMD_SYSTEM_GET_USB_ADB_STATE,
                    &ISystemCtrl::getUsbAdbState)
            .method("isPirWakeupEnable", Row::CMD_SYSTEM_IS_PIR_WAKEUP_ENABLE,
                    &ISystemCtrl::isPirWakeupEnable)
            .method("setPirWakeupEnable", Row::CMD_SYSTEM_SET_PIR_WAKEUP_ENABLE,
                    &ISystemCtrl::setPirWakeupEnable, "on")
            .method("getPirWakeupDelay", Row::CMD_SYSTEM_GET_PIR_WAKEUP_DELAY,
                    &ISystemCtrl::getPirWakeupDelay)
            .method("setPirWakeupDelay", Row::CMD_SYSTEM_SET_PIR_WAKEUP_DELAY,
                    &ISystemCtrl::setPirWakeupDelay, "delay")
            .method("isRemoteCtrlWakeupEnable", Row::CMD_SYSTEM_IS_REMOTE_CTRL_WAKEUP_ENABLE,
                    &ISystemCtrl::isRemoteCtrlWakeupEnable)
            .method("setRemoteCtrlWakeupEnable", Row::CMD_SYSTEM_SET_REMOTE_CTRL_WAKEUP_ENABLE,
                    &ISystemCtrl::setRemoteCtrlWakeupEnable, "on")
            .method("setRS232WakeupEnable", Row::CMD_SYSTEM_SET_RS232_WAKEUP_ENABLE,
                    &ISystemCtrl::setRS232WakeupEnable, "on")
            .method("isRs232WakeupEnable", Row::CMD_SYSTEM_IS_RS232_WAKEUP_ENABLE,
                    &ISystemCtrl::isRs232WakeupEnable)
            .method("setRtcWakeupEnable", Row::CMD_SYSTEM_SET_RTC_WAKEUP_ENABLE,
                    &ISystemCtrl::setRtcWakeupEnable, "on")
            .method("isRtcWakeupEnable", Row::CMD_SYSTEM_IS_RTC_WAKEUP_ENABLE,
                    &ISystemCtrl::isRtcWakeupEnable)
            .method("setUsbPowerEnable", Row::CMD_SYSTEM_SET_USB_POWER_ENABLE,
                    &ISystemCtrl::setUsbPowerEnable, "on")
            .method("getUsbPowerEnableSta", Row::CMD_SYSTEM_GET_USB_POWER_ENABLE_STA,
                    &ISystemCtrl::getUsbPowerEnableSta)
            .method("setUsbSuspend", Row::CMD_SYSTEM_SET_USB_SUSPEND, &ISystemCtrl::setUsbSuspend)
            .method("setUsbResume", Row::CMD_SYSTEM_SET_USB_RESUME, &ISystemCtrl::setUsbResume)
            .method("resetBootAnimation", Row::CMD_SYSTEM_RESET_BOOT_ANIMATION,
                    &ISystemCtrl::resetBootAnimation)
            .method("setLogoDisplayState", Row::CMD_SYSTEM_SET_LOGO_DISPLAY_STATE,
                    &ISystemCtrl::setLogoDisplayState, "on")
            .method("getLogoDisplayState", Row::CMD_SYSTEM_GET_LOGO_DISPLAY_STATE,
                    &ISystemCtrl::getLogoDisplayState)
            .method("setSTRWakeLockState", Row::CMD_SYSTEM_SET_STR_WAKE_LOCK_STATE,
                    &ISystemCtrl::setSTRWakeLockState, "on")
            .method("getSTRWakeLockState", Row::CMD_SYSTEM_GET_STR_WAKE_LOCK_STATE,
                    &ISystemCtrl::getSTRWakeLockState)
            .method("isSignalPluginWakeup", Row::CMD_SYSTEM_IS_SIGNAL_PLUGIN_WAKEUP,
                    &ISystemCtrl::isSignalPluginWakeup)
            .method("setSignalPluginWakeup", Row::CMD_SYSTEM_SET_SIGNAL_PLUGIN_WAKEUP,
                    &ISystemCtrl::setSignalPluginWakeup, "on")
            .method("isCecWakeupEnable", Row::CMD_SYSTEM_IS_CEC_WAKEUP_ENABLE,
                    &ISystemCtrl::isCecWakeupEnable)
            .method("setCecWakeupEnable", Row::CMD_SYSTEM_SET_CEC_WAKEUP_ENABLE,
                    &ISystemCtrl::setCecWakeupEnable, "on")
            .method("getWakeDelayLinkToID", Row::CMD_SYSTEM_GET_WAKE_DELAY_LINK_TO_ID,
                    &ISystemCtrl::getWakeDelayLinkToID)
            .method("setWakeDelayLinkToID", Row::CMD_SYSTEM_SET_WAKE_DELAY_LINK_TO_ID,
                    &ISystemCtrl::setWakeDelayLinkToID, "on")
            .method("setlockkeyIR", Row::CMD_SYSTEM_SET_LOCK_KEY_IR, &ISystemCtrl::setlockkeyIR,
                    "lock, key")
            .method("setNfcStatus", Row::CMD_SYSTEM_SET_NFC_STATUS, &ISystemCtrl::setNfcStatus,
                    "status")
            .method("getNfcStatus", Row::CMD_SYSTEM_GET_NFC_STATUS, &ISystemCtrl::getNfcStatus)
            .method("setBootLogoEnable", Row::CMD_SYSTEM_SET_BOOT_LOGO_ENABLE,
                    &ISystemCtrl::setBootLogoEnable, "on")
            .method("getBootLogoEnable", Row::CMD_SYSTEM_GET_BOOT_LOGO_ENABLE,
                    &ISystemCtrl::getBootLogoEnable)
            .method("resetBootVideo", Row::CMD_SYSTEM_RESET_BOOT_VIDEO,
                    &ISystemCtrl::resetBootVideo)
            .method("enable_hdmi_switch_tx", Row::CMD_SYSTEM_ENABLE_HDMI_SWITCH_TX,
                    &ISystemCtrl::enable_hdmi_switch_tx, "value")
            .method("setMultiPipUsbMode", Row::CMD_SYSTEM_SET_MULTI_PIP_USB_MODE,
                    &ISystemCtrl::setMultiPipUsbMode, "mode")
            .method("getAenaState", Row::CMD_SYSTEM_GET_AENA_STATE, &ISystemCtrl::getAenaState,
                    "which")
            .method("doDeviceReset", Row::CMD_SYSTEM_DO_DEVICE_RESET, &ISystemCtrl::doDeviceReset)
            .method("monitorNfcState", Row::CMD_SYSTEM_MONITOR_NFC_STATE,
                    &ISystemCtrl::monitorNfcState, "on")
            .method("getCustomBootMediaPath", Row::CMD_SYSTEM_GET_CUSTOM_BOOT_MEDIA_PATH,
                    &ISystemCtrl::getCustomBootMediaPath)
            .method("setCustomBootMediaType", Row::CMD_SYSTEM_SET_CUSTOM_BOOT_MEDIA_TYPE,
                    &ISystemCtrl::setCustomBootMediaType, "type")
            .method("keepCpuInPerformance", Row::CMD_SYSTEM_KEEP_CPU_IN_PERFORMANCE,
                    &ISystemCtrl::keepCpuInPerformance, "hold")
            .method("cancelCpuInPerformance", Row::CMD_SYSTEM_CANCEL_CPU_IN_PERFORMANCE,
                    &ISystemCtrl::cancelCpuInPerformance)
            .method("keepGpuInPerformance", Row::CMD_SYSTEM_KEEP_GPU_IN_PERFORMANCE,
                    &ISystemCtrl::keepGpuInPerformance, "hold")
            .method("cancelGpuInPerformance", Row::CMD_SYSTEM_CANCEL_GPU_IN_PERFORMANCE,
                    &ISystemCtrl::cancelGpuInPerformance)
            .method("getHwcRefreshRate", Row::CMD_SYSTEM_GET_HWC_REFRESH_RATE,
                    &ISystemCtrl::getHwcRefreshRate)
            .method("setHwcRefreshRate", Row::CMD_SYSTEM_SET_HWC_REFRESH_RATE,
                    &ISystemCtrl::setHwcRefreshRate, "rate")
            .method("getPowerMode", Row::CMD_SYSTEM_GET_POWER_MODE, &ISystemCtrl::getPowerMode)
            .method("setPowerMode", Row::CMD_SYSTEM_SET_POWER_MODE, &ISystemCtrl::setPowerMode,
                    "mode")
            .method("setCecCtlType", Row::CMD_SYSTEM_SET_CEC_CTL_TYPE, &ISystemCtrl::setCecCtlType,
                    "type")
            .method("setSarPowerMode", Row::CMD_SYSTEM_SET_SAR_POWER_MODE,
                    &ISystemCtrl::setSarPowerMode, "mode")
            .method("getSarPowerMode", Row::CMD_SYSTEM_GET_SAR_POWER_MODE,
                    &ISystemCtrl::getSarPowerMode)
            .method("setPirDeviceType", Row::CMD_SYSTEM_SET_PIR_DEVICE_TYPE,
                    &ISystemCtrl::setPirDeviceType, "type")
            .method("getPirDeviceType", Row::CMD_SYSTEM_GET_PIR_DEVICE_TYPE,
                    &ISystemCtrl::getPirDeviceType);
}

}  // namespace tarn::registry
