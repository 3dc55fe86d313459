#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>

namespace android {

/** A SELinux mode; what the three mean is service-defined. */
enum _EnumSelinuxMode_ : int32_t {
    SELINUX_MODE_1 = 1,
    SELINUX_MODE_2 = 2,
    SELINUX_MODE_3 = 3,
};

/** A temperature sensor whose threshold can be set; where the two sit is service-defined. */
enum _EnumTempType_ : int32_t {
    TEMP_TYPE_SENSOR_1 = 1,
    TEMP_TYPE_SENSOR_2 = 2,
};

/** A kind of custom boot medium; the values are service-defined. */
enum EnumCustomerBootMediaType : int32_t {};

/**
 * A refresh-rate choice of the hardware composer; which rates they stand for is service-defined.
 */
enum _EnumRefreshRate_ : int32_t {
    REFRESH_RATE_0 = 0,
    REFRESH_RATE_1 = 1,
    REFRESH_RATE_2 = 2,
};

/** A kind of CEC control; the values are service-defined. */
enum _EnumCecCtlType_ : int32_t {};

/**
 * Settings of the whole board: SELinux mode, temperature thresholds, upgrade and reset status, boot
 * media, wake-up sources, USB and system power, performance and refresh rate.
 *
 * Calls block until the service has answered; any thread may call. Unless noted, a failed call (see
 * ITarnManager) returns -1, false or an empty text, an int result is the service's status word, and
 * a bool result is the service's answer. Unless noted, arguments are passed on unchecked; units,
 * modes, states and numbers are service-defined.
 */
class TARN_EXPORT ISystemCtrl : public virtual RefBase {
  public:
    /** Sets the SELinux mode. Any but the three sends nothing, logs an error line, returns -1. */
    virtual int setSelinuxMode(_EnumSelinuxMode_ mode) = 0;

    /**
     * Returns the SELinux mode, 1 to 3. For any other answer, and when the call failed, it returns
     * 3 and logs an error line.
     */
    virtual int getSelinuxMode() = 0;

    /**
     * Sets the threshold of one temperature sensor. True when the status is 0. A negative threshold
     * or an unknown sensor sends nothing and returns false.
     */
    virtual bool setTempThreshold(_EnumTempType_ type, int threshold) = 0;

    /** Returns the threshold of one sensor. An unknown sensor sends nothing and returns -1. */
    virtual int getTempThreshold(_EnumTempType_ type) = 0;

    /** Sets the status of the over-the-air upgrade. True when the service's status word is 0. */
    virtual bool setOtaUpgradeStatus(int status) = 0;

    /** Returns the status of the over-the-air upgrade, a number as its setter takes it. */
    virtual int getOtaUpgradeStatus() = 0;

    /** Sets the status of the factory reset. True when the service's status word is 0. */
    virtual bool setFactoryResetStatus(int status) = 0;

    /** Returns the status of the factory reset, a number as its setter takes it. */
    virtual int getFactoryResetStatus() = 0;

    /** Returns the system setting word; what it holds is service-defined. */
    virtual int getSystemSetting() = 0;

    /** Replaces the boot logo by a file of the device; path is UTF-8 and must not be null. */
    virtual bool replaceBootLogo(char* path) = 0;

    /** Brings the original boot logo back. */
    virtual bool resetBootLogo() = 0;

    /** Replaces the boot animation; path is as for replaceBootLogo(). */
    virtual bool replaceBootAnimation(char* path) = 0;

    /** Replaces the boot video; path is as for replaceBootLogo(). */
    virtual bool replaceBootVideo(char* path) = 0;

    /** Returns the CPU temperature as text; its form and unit are service-defined. */
    virtual String16 getCPUtemperature() = 0;

    /** True while the compatibility test suite (CTS) is marked as running. */
    virtual bool isCtsRunning() = 0;

    /** Marks the compatibility test suite as running or not. */
    virtual int setCtsRunning(bool running) = 0;

    /** Switches the debug UART; state is a number, sent as it is. */
    virtual bool setDebugUartSwitch(int state) = 0;

    /** Returns the state of the debug UART, a number as setDebugUartSwitch() takes it. */
    virtual int getDebugUartSwitch() = 0;

    /** Sets the power-on alarm; the unit of time is service-defined. */
    virtual bool setAlarmTime(int time) = 0;

    /** Selects the input port of the infrared receiver; port numbers are service-defined. */
    virtual bool setIrInPort(int port) = 0;

    /** Returns the input port of the infrared receiver, a number as setIrInPort() takes it. */
    virtual int getIrInPort() = 0;

    /** True when verified boot is on. */
    virtual bool getDeviceAVBState() = 0;

    /** Switches verified boot. True when the status is not 0, so also when the call failed. */
    virtual bool setDeviceAVBState(bool on) = 0;

    /** Switches ADB over USB. True when the status is not 0, so also when the call failed. */
    virtual bool setUsbAdbState(bool on) = 0;

    /** True when ADB over USB is on. */
    virtual bool getUsbAdbState() = 0;

    /** True when the presence sensor (PIR) may wake the board. */
    virtual bool isPirWakeupEnable() = 0;

    /**
     * Lets the presence sensor wake the board. True when the status is not 0, so also when the call
     * failed.
     */
    virtual bool setPirWakeupEnable(bool on) = 0;

    /** Returns the delay of the presence sensor's wake-up; unit service-defined. */
    virtual int getPirWakeupDelay() = 0;

    /** Sets the delay of the presence sensor's wake-up, in the unit of getPirWakeupDelay(). */
    virtual bool setPirWakeupDelay(int delay) = 0;

    /** True when the remote control may wake the board. */
    virtual bool isRemoteCtrlWakeupEnable() = 0;

    /**
     * Lets the remote control wake the board. True when the status is not 0, so also when the call
     * failed.
     */
    virtual bool setRemoteCtrlWakeupEnable(bool on) = 0;

    /** Lets RS-232 wake the board. True when the status is not 0, so also when the call failed. */
    virtual bool setRS232WakeupEnable(bool on) = 0;

    /** True when RS-232 may wake the board. */
    virtual bool isRs232WakeupEnable() = 0;

    /**
     * Lets the RTC alarm wake the board. True when the status is not 0, so also when the call
     * failed. Its debug line in the log names setRS232WakeupEnable.
     */
    virtual bool setRtcWakeupEnable(bool on) = 0;

    /**
     * True when the RTC alarm may wake the board. Its debug line in the log names
     * isRs232WakeupEnable.
     */
    virtual bool isRtcWakeupEnable() = 0;

    /** Switches the USB power. True when the status is not 0, so also when the call failed. */
    virtual bool setUsbPowerEnable(bool on) = 0;

    /** True when the USB power is on. */
    virtual bool getUsbPowerEnableSta() = 0;

    /** Suspends USB until setUsbResume(). */
    virtual bool setUsbSuspend() = 0;

    /** Ends setUsbSuspend(). */
    virtual bool setUsbResume() = 0;

    /** Brings the original boot animation back. */
    virtual bool resetBootAnimation() = 0;

    /** Shows or hides the logo. True when the status is not 0, so also when the call failed. */
    virtual bool setLogoDisplayState(bool on) = 0;

    /** True when the logo is shown. */
    virtual bool getLogoDisplayState() = 0;

    /**
     * Holds the wake lock against suspend-to-RAM, or releases it. True when the status is not 0, so
     * also when the call failed.
     */
    virtual bool setSTRWakeLockState(bool on) = 0;

    /** True while the wake lock against suspend-to-RAM is held. */
    virtual bool getSTRWakeLockState() = 0;

    /** True when plugging a signal in may wake the board. */
    virtual bool isSignalPluginWakeup() = 0;

    /**
     * Lets plugging a signal in wake the board. True when the status is not 0, so also when the
     * call failed.
     */
    virtual bool setSignalPluginWakeup(bool on) = 0;

    /** True when CEC may wake the board. */
    virtual bool isCecWakeupEnable() = 0;

    /** Lets CEC wake the board. True when the status is not 0, so also when the call failed. */
    virtual bool setCecWakeupEnable(bool on) = 0;

    /** True when the wake-up delay is linked to the presence sensor. */
    virtual bool getWakeDelayLinkToID() = 0;

    /** Links the wake-up delay to the presence sensor, or not. */
    virtual bool setWakeDelayLinkToID(bool on) = 0;

    /** Locks one key of the infrared remote with true, unlocks it with false. */
    virtual bool setlockkeyIR(bool lock, int key) = 0;

    /** Sets the NFC status, a service-defined number. */
    virtual int setNfcStatus(int status) = 0;

    /** Returns the NFC status, a number as setNfcStatus() takes it. */
    virtual int getNfcStatus() = 0;

    /** Switches the boot logo on or off. */
    virtual bool setBootLogoEnable(bool on) = 0;

    /** True when the boot logo is on. */
    virtual bool getBootLogoEnable() = 0;

    /** Brings the original boot video back. */
    virtual bool resetBootVideo() = 0;

    /** Sets the transmitter of the HDMI switch to a service-defined value. */
    virtual int enable_hdmi_switch_tx(int value) = 0;

    /** Sets the USB mode for several picture-in-picture windows. */
    virtual bool setMultiPipUsbMode(int mode) = 0;

    /** Returns the AENA state of a service-defined item. */
    virtual int getAenaState(int which) = 0;

    /** Resets the device; how far the reset goes is service-defined. */
    virtual int doDeviceReset() = 0;

    /** Switches the monitoring of the NFC state. */
    virtual bool monitorNfcState(bool on) = 0;

    /** Returns the path of the custom boot medium. */
    virtual String16 getCustomBootMediaPath() = 0;

    /** Selects the custom boot medium that is used. */
    virtual bool setCustomBootMediaType(EnumCustomerBootMediaType type) = 0;

    /** Keeps the CPU in performance mode; the unit of hold is service-defined. */
    virtual bool keepCpuInPerformance(int hold) = 0;

    /** Ends keepCpuInPerformance(). */
    virtual bool cancelCpuInPerformance() = 0;

    /** Keeps the GPU in performance mode; the unit of hold is service-defined. */
    virtual bool keepGpuInPerformance(int hold) = 0;

    /** Ends keepGpuInPerformance(). */
    virtual bool cancelGpuInPerformance() = 0;

    /** Returns the refresh-rate choice; REFRESH_RATE_0 for other answers and failed calls. */
    virtual _EnumRefreshRate_ getHwcRefreshRate() = 0;

    /** Sets the refresh-rate choice; values other than the three are sent too. */
    virtual bool setHwcRefreshRate(_EnumRefreshRate_ rate) = 0;

    /** Returns the power mode, a service-defined number. */
    virtual int getPowerMode() = 0;

    /** Sets the power mode, a number as getPowerMode() returns it. */
    virtual bool setPowerMode(int mode) = 0;

    /** Sets the kind of CEC control; it can't be read back. */
    virtual bool setCecCtlType(_EnumCecCtlType_ type) = 0;

    /** Sets the SAR power mode, a service-defined number. */
    virtual bool setSarPowerMode(int mode) = 0;

    /** Returns the SAR power mode, a number as setSarPowerMode() takes it. */
    virtual int getSarPowerMode() = 0;

    // The two operations after the destructor keep that place in the virtual table.
    virtual ~ISystemCtrl() = default;

    /** Sets the type of the presence sensor, service-defined. True when the status is 0. */
    virtual bool setPirDeviceType(int type) = 0;

    /** Returns the type of the presence sensor, a number as setPirDeviceType() takes it. */
    virtual int getPirDeviceType() = 0;
};

}  // namespace android
