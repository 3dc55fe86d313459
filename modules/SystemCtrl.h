#pragma once

#include <tarn/ISystemCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class SystemCtrl : public ISystemCtrl {
  public:
    explicit SystemCtrl(const sp<TarnManager>& manager);

    int setSelinuxMode(_EnumSelinuxMode_ mode) override;
    int getSelinuxMode() override;
    bool setTempThreshold(_EnumTempType_ type, int threshold) override;
    int getTempThreshold(_EnumTempType_ type) override;
    bool setOtaUpgradeStatus(int status) override;
    int getOtaUpgradeStatus() override;
    bool setFactoryResetStatus(int status) override;
    int getFactoryResetStatus() override;
    int getSystemSetting() override;
    bool replaceBootLogo(char* path) override;
    bool resetBootLogo() override;
    bool replaceBootAnimation(char* path) override;
    bool replaceBootVideo(char* path) override;
    String16 getCPUtemperature() override;
    bool isCtsRunning() override;
    int setCtsRunning(bool running) override;
    bool setDebugUartSwitch(int state) override;
    int getDebugUartSwitch() override;
    bool setAlarmTime(int time) override;
    bool setIrInPort(int port) override;
    int getIrInPort() override;
    bool getDeviceAVBState() override;
    bool setDeviceAVBState(bool on) override;
    bool setUsbAdbState(bool on) override;
    bool getUsbAdbState() override;
    bool isPirWakeupEnable() override;
    bool setPirWakeupEnable(bool on) override;
    int getPirWakeupDelay() override;
    bool setPirWakeupDelay(int delay) override;
    bool isRemoteCtrlWakeupEnable() override;
    bool setRemoteCtrlWakeupEnable(bool on) override;
    bool setRS232WakeupEnable(bool on) override;
    bool isRs232WakeupEnable() override;
    bool setRtcWakeupEnable(bool on) override;
    bool isRtcWakeupEnable() override;
    bool setUsbPowerEnable(bool on) override;
    bool getUsbPowerEnableSta() override;
    bool setUsbSuspend() override;
    bool setUsbResume() override;
    bool resetBootAnimation() override;
    bool setLogoDisplayState(bool on) override;
    bool getLogoDisplayState() override;
    bool setSTRWakeLockState(bool on) override;
    bool getSTRWakeLockState() override;
    bool isSignalPluginWakeup() override;
    bool setSignalPluginWakeup(bool on) override;
    bool isCecWakeupEnable() override;
    bool setCecWakeupEnable(bool on) override;
    bool getWakeDelayLinkToID() override;
    bool setWakeDelayLinkToID(bool on) override;
    bool setlockkeyIR(bool lock, int key) override;
    int setNfcStatus(int status) override;
    int getNfcStatus() override;
    bool setBootLogoEnable(bool on) override;
    bool getBootLogoEnable() override;
    bool resetBootVideo() override;
    int enable_hdmi_switch_tx(int value) override;
    bool setMultiPipUsbMode(int mode) override;
    int getAenaState(int which) override;
    int doDeviceReset() override;
    bool monitorNfcState(bool on) override;
    String16 getCustomBootMediaPath() override;
    bool setCustomBootMediaType(EnumCustomerBootMediaType type) override;
    bool keepCpuInPerformance(int hold) override;
    bool cancelCpuInPerformance() override;
    bool keepGpuInPerformance(int hold) override;
    bool cancelGpuInPerformance() override;
    _EnumRefreshRate_ getHwcRefreshRate() override;
    bool setHwcRefreshRate(_EnumRefreshRate_ rate) override;
    int getPowerMode() override;
    bool setPowerMode(int mode) override;
    bool setCecCtlType(_EnumCecCtlType_ type) override;
    bool setSarPowerMode(int mode) override;
    int getSarPowerMode() override;
    bool setPirDeviceType(int type) override;
    int getPirDeviceType() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
