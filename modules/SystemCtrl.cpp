#include "modules/SystemCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@SystemCtrl"
#include "log/Log.h"

namespace android {

namespace {

bool isSelinuxMode(int mode) {
    return mode == SELINUX_MODE_1 || mode == SELINUX_MODE_2 || mode == SELINUX_MODE_3;
}

bool isTempType(int type) {
    return type == TEMP_TYPE_SENSOR_1 || type == TEMP_TYPE_SENSOR_2;
}

}  // namespace

SystemCtrl::SystemCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int SystemCtrl::setSelinuxMode(_EnumSelinuxMode_ mode) {
    if (!isSelinuxMode(mode)) {
        TLOGE("have no this selinux mode ,set failed !");
        return -1;
    }
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_SELINUX_MODE, mode);
}

int SystemCtrl::getSelinuxMode() {
    const int mode = mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_GET_SELINUX_MODE);
    if (isSelinuxMode(mode)) return mode;
    TLOGE("have no this selinux mode ,set failed !, ret = %d", mode);
    return SELINUX_MODE_3;
}

bool SystemCtrl::setTempThreshold(_EnumTempType_ type, int threshold) {
    if (threshold < 0 || !isTempType(type)) return false;
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_TEMP_THRESHOLD, type, threshold) == 0;
}

int SystemCtrl::getTempThreshold(_EnumTempType_ type) {
    if (!isTempType(type)) return -1;
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_GET_TEMP_THRESHOLD, type);
}

bool SystemCtrl::setOtaUpgradeStatus(int status) {
    TLOGD("setOtaUpgradeStatus status = %d", status);
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_OTA_UPGRADE_STATUS, status) == 0;
}

int SystemCtrl::getOtaUpgradeStatus() {
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_GET_OTA_UPGRADE_STATUS);
}

bool SystemCtrl::setFactoryResetStatus(int status) {
    TLOGD("setFactoryResetStatus status = %d", status);
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_FACTORY_RESET_STATUS, status) == 0;
}

int SystemCtrl::getFactoryResetStatus() {
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_GET_FACTORY_RESET_STATUS);
}

int SystemCtrl::getSystemSetting() {
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_GET_SYSTEM_SETTING);
}

bool SystemCtrl::replaceBootLogo(char* path) {
    return sendForBoolUnlessFailed(mTarnMgr, CMD_SYSTEM_REPLACE_BOOT_LOGO, String16(path));
}

bool SystemCtrl::resetBootLogo() {
    return askForBoolUnlessFailed(mTarnMgr, CMD_SYSTEM_RESET_BOOT_LOGO);
}

bool SystemCtrl::replaceBootAnimation(char* path) {
    return sendForBoolUnlessFailed(mTarnMgr, CMD_SYSTEM_REPLACE_BOOT_ANIMATION, String16(path));
}

bool SystemCtrl::replaceBootVideo(char* path) {
    return sendForBoolUnlessFailed(mTarnMgr, CMD_SYSTEM_REPLACE_BOOT_VIDEO, String16(path));
}

String16 SystemCtrl::getCPUtemperature() {
    return askForText(mTarnMgr, CMD_SYSTEM_GET_CPU_TEMPERATURE);
}

bool SystemCtrl::isCtsRunning() {
    Parcel reply;
    return mTarnMgr->exeCmdSet_Parcel(CMD_SYSTEM_IS_CTS_RUNNING, &reply) == 0 && reply.readBool();
}

int SystemCtrl::setCtsRunning(bool running) {
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_CTS_RUNNING, running);
}

bool SystemCtrl::setDebugUartSwitch(int state) {
    TLOGD("setDebugUartSwitch");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_SET_DEBUG_UART_SWITCH, state);
}

int SystemCtrl::getDebugUartSwitch() {
    TLOGD("getDebugUartSwitch");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_GET_DEBUG_UART_SWITCH);
}

bool SystemCtrl::setAlarmTime(int time) {
    TLOGD("setAlarmTime");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_SET_ALARM_TIME, time);
}

bool SystemCtrl::setIrInPort(int port) {
    TLOGD("SetIrInPort:%d\n", port);
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_SET_IR_IN_PORT, port);
}

int SystemCtrl::getIrInPort() {
    TLOGD("GetIrInPort\n");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_GET_IR_IN_PORT);
}

bool SystemCtrl::getDeviceAVBState() {
    TLOGD("getDeviceAVBState\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_GET_DEVICE_AVB_STATE);
}

bool SystemCtrl::setDeviceAVBState(bool on) {
    TLOGD("setDeviceAVBState\n");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_DEVICE_AVB_STATE, on) != 0;
}

bool SystemCtrl::setUsbAdbState(bool on) {
    TLOGD("setUsbAdbStatus\n");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_USB_ADB_STATE, on) != 0;
}

bool SystemCtrl::getUsbAdbState() {
    TLOGD("getUsbAdbStatus\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_GET_USB_ADB_STATE);
}

bool SystemCtrl::isPirWakeupEnable() {
    TLOGD("isPirWakeupEnable\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_IS_PIR_WAKEUP_ENABLE);
}

bool SystemCtrl::setPirWakeupEnable(bool on) {
    TLOGD("setPirWakeupEnable\n");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_PIR_WAKEUP_ENABLE, on) != 0;
}

int SystemCtrl::getPirWakeupDelay() {
    TLOGD("getPirWakeupDelay\n");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_GET_PIR_WAKEUP_DELAY);
}

bool SystemCtrl::setPirWakeupDelay(int delay) {
    TLOGD("setPirWakeupDelay\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_SET_PIR_WAKEUP_DELAY, delay);
}

bool SystemCtrl::isRemoteCtrlWakeupEnable() {
    TLOGD("isRemoteCtrlWakeupEnable\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_IS_REMOTE_CTRL_WAKEUP_ENABLE);
}

bool SystemCtrl::setRemoteCtrlWakeupEnable(bool on) {
    TLOGD("setRemoteCtrlWakeupEnable\n");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_REMOTE_CTRL_WAKEUP_ENABLE, on) != 0;
}

bool SystemCtrl::setRS232WakeupEnable(bool on) {
    TLOGD("setRS232WakeupEnable\n");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_RS232_WAKEUP_ENABLE, on) != 0;
}

bool SystemCtrl::isRs232WakeupEnable() {
    TLOGD("isRs232WakeupEnable\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_IS_RS232_WAKEUP_ENABLE);
}

// The RTC operations log the RS-232 texts: log readers rely on them.
bool SystemCtrl::setRtcWakeupEnable(bool on) {
    TLOGD("setRS232WakeupEnable\n");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_RTC_WAKEUP_ENABLE, on) != 0;
}

bool SystemCtrl::isRtcWakeupEnable() {
    TLOGD("isRs232WakeupEnable\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_IS_RTC_WAKEUP_ENABLE);
}

bool SystemCtrl::setUsbPowerEnable(bool on) {
    TLOGD("setUsbPowerEnable\n");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_USB_POWER_ENABLE, on) != 0;
}

bool SystemCtrl::getUsbPowerEnableSta() {
    TLOGD("getUsbPowerEnableSta\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_GET_USB_POWER_ENABLE_STA);
}

bool SystemCtrl::setUsbSuspend() {
    TLOGD("setUsbSuspend\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_SET_USB_SUSPEND);
}

bool SystemCtrl::setUsbResume() {
    TLOGD("setUsbResume\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_SET_USB_RESUME);
}

bool SystemCtrl::resetBootAnimation() {
    TLOGD("resetBootAnimation\n");
    return askForBoolUnlessFailed(mTarnMgr, CMD_SYSTEM_RESET_BOOT_ANIMATION);
}

bool SystemCtrl::setLogoDisplayState(bool on) {
    TLOGD("setLogoDisplayState\n");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_LOGO_DISPLAY_STATE, on) != 0;
}

bool SystemCtrl::getLogoDisplayState() {
    TLOGD("getLogoDisplayState\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_GET_LOGO_DISPLAY_STATE);
}

bool SystemCtrl::setSTRWakeLockState(bool on) {
    TLOGD("setSTRWakeLockState\n");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_STR_WAKE_LOCK_STATE, on) != 0;
}

bool SystemCtrl::getSTRWakeLockState() {
    TLOGD("getSTRWakeLockState\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_GET_STR_WAKE_LOCK_STATE);
}

bool SystemCtrl::isSignalPluginWakeup() {
    TLOGD("isSignalPluginWakeup\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_IS_SIGNAL_PLUGIN_WAKEUP);
}

bool SystemCtrl::setSignalPluginWakeup(bool on) {
    TLOGD("setSignalPluginWakeup\n");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_SIGNAL_PLUGIN_WAKEUP, on) != 0;
}

bool SystemCtrl::isCecWakeupEnable() {
    TLOGD("isCecWakeupEnable\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_IS_CEC_WAKEUP_ENABLE);
}

bool SystemCtrl::setCecWakeupEnable(bool on) {
    TLOGD("setCecWakeupEnable\n");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_CEC_WAKEUP_ENABLE, on) != 0;
}

bool SystemCtrl::getWakeDelayLinkToID() {
    TLOGD("getWakeDelayLinkToID\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_GET_WAKE_DELAY_LINK_TO_ID);
}

bool SystemCtrl::setWakeDelayLinkToID(bool on) {
    TLOGD("setWakeDelayLinkToID\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_SET_WAKE_DELAY_LINK_TO_ID, on);
}

bool SystemCtrl::setlockkeyIR(bool lock, int key) {
    TLOGD("setlockkeyIR\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_SET_LOCK_KEY_IR, key, lock);
}

int SystemCtrl::setNfcStatus(int status) {
    TLOGD("setNfcStatus");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_NFC_STATUS, status);
}

int SystemCtrl::getNfcStatus() {
    TLOGD("getNfcStatus");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_GET_NFC_STATUS);
}

bool SystemCtrl::setBootLogoEnable(bool on) {
    TLOGD("setBootLogoEnable\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_SET_BOOT_LOGO_ENABLE, on);
}

bool SystemCtrl::getBootLogoEnable() {
    TLOGD("getBootLogoEnable\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_GET_BOOT_LOGO_ENABLE);
}

bool SystemCtrl::resetBootVideo() {
    return askForBoolUnlessFailed(mTarnMgr, CMD_SYSTEM_RESET_BOOT_VIDEO);
}

int SystemCtrl::enable_hdmi_switch_tx(int value) {
    TLOGD("enable_hdmi_switch_tx\n");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_ENABLE_HDMI_SWITCH_TX, value);
}

bool SystemCtrl::setMultiPipUsbMode(int mode) {
    TLOGD("setMultiPipUsbMode\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_SET_MULTI_PIP_USB_MODE, mode);
}

int SystemCtrl::getAenaState(int which) {
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_GET_AENA_STATE, which);
}

int SystemCtrl::doDeviceReset() {
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_DO_DEVICE_RESET);
}

bool SystemCtrl::monitorNfcState(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_MONITOR_NFC_STATE, on);
}

String16 SystemCtrl::getCustomBootMediaPath() {
    TLOGD("getCustomBootMediaPath\n");
    return askForText(mTarnMgr, CMD_SYSTEM_GET_CUSTOM_BOOT_MEDIA_PATH);
}

bool SystemCtrl::setCustomBootMediaType(EnumCustomerBootMediaType type) {
    TLOGD("setCustomBootMediaType\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_SET_CUSTOM_BOOT_MEDIA_TYPE, type);
}

bool SystemCtrl::keepCpuInPerformance(int hold) {
    TLOGD("%s\n", __func__);
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_KEEP_CPU_IN_PERFORMANCE, hold);
}

bool SystemCtrl::cancelCpuInPerformance() {
    TLOGD("%s\n", __func__);
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_CANCEL_CPU_IN_PERFORMANCE);
}

bool SystemCtrl::keepGpuInPerformance(int hold) {
    TLOGD("%s\n", __func__);
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_KEEP_GPU_IN_PERFORMANCE, hold);
}

bool SystemCtrl::cancelGpuInPerformance() {
    TLOGD("%s\n", __func__);
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_CANCEL_GPU_IN_PERFORMANCE);
}

_EnumRefreshRate_ SystemCtrl::getHwcRefreshRate() {
    TLOGD("getHwcRefreshRate\n");
    switch (mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_GET_HWC_REFRESH_RATE)) {
        case REFRESH_RATE_1:
            return REFRESH_RATE_1;
        case REFRESH_RATE_2:
            return REFRESH_RATE_2;
        default:
            return REFRESH_RATE_0;
    }
}

bool SystemCtrl::setHwcRefreshRate(_EnumRefreshRate_ rate) {
    TLOGD("setHwcRefreshRate\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_SET_HWC_REFRESH_RATE, rate);
}

int SystemCtrl::getPowerMode() {
    TLOGD("%s\n", __func__);
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_GET_POWER_MODE);
}

bool SystemCtrl::setPowerMode(int mode) {
    TLOGD("%s\n", __func__);
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_SET_POWER_MODE, mode);
}

bool SystemCtrl::setCecCtlType(_EnumCecCtlType_ type) {
    TLOGD("setCecCtlType\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_SET_CEC_CTL_TYPE, type);
}

bool SystemCtrl::setSarPowerMode(int mode) {
    TLOGD("%s\n", __func__);
    return mTarnMgr->exeCmdSet_Bool(CMD_SYSTEM_SET_SAR_POWER_MODE, mode);
}

int SystemCtrl::getSarPowerMode() {
    TLOGD("%s\n", __func__);
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_GET_SAR_POWER_MODE);
}

bool SystemCtrl::setPirDeviceType(int type) {
    TLOGD("setPirDeviceType type = %d", type);
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_SET_PIR_DEVICE_TYPE, type) == 0;
}

int SystemCtrl::getPirDeviceType() {
    TLOGD("getPirDeviceType");
    return mTarnMgr->exeCmdSet_Int(CMD_SYSTEM_GET_PIR_DEVICE_TYPE);
}

}  // namespace android
