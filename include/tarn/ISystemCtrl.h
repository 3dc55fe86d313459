#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>

namespace android {

/** A SELinux mode; the service knows three and gives them their meaning. */
enum _EnumSelinuxMode_ : int32_t {
    SELINUX_MODE_1 = 1,
    SELINUX_MODE_2 = 2,
    SELINUX_MODE_3 = 3,
};

/** A temperature sensor whose threshold can be set. */
enum _EnumTempType_ : int32_t {
    TEMP_TYPE_SENSOR_1 = 1,
    TEMP_TYPE_SENSOR_2 = 2,
};

/** A kind of custom boot medium; the values are the service's. */
enum EnumCustomerBootMediaType : int32_t {};

/** A refresh-rate choice of the hardware composer; the service gives the choices their rates. */
enum _EnumRefreshRate_ : int32_t {
    REFRESH_RATE_0 = 0,
    REFRESH_RATE_1 = 1,
    REFRESH_RATE_2 = 2,
};

/** A kind of CEC control; the values are the service's. */
enum _EnumCecCtlType_ : int32_t {};

/**
 * Settings of the whole board: SELinux mode, temperature thresholds, upgrade and reset status,
 * boot media, wake-up sources, USB and system power, performance and refresh rate.
 *
 * Every call blocks for one exchange with the service; any thread may call. Units, modes and
 * states are service-defined, and arguments are passed on unchecked unless an operation says
 * otherwise. An int result is the service's status word, -1 when the command failed. A bool result
 * is false when the command failed, except that "true unless the service answers 0" reads a
 * failed command as true.
 */
class ISystemCtrl : public virtual RefBase {
  public:
    /** Sets the SELinux mode, 1 to 3; any other mode gives -1 and sends nothing. */
    virtual int setSelinuxMode(_EnumSelinuxMode_ mode) = 0;

    /** Returns the SELinux mode, 1 to 3; 3 when the command failed or gave another mode. */
    virtual int getSelinuxMode() = 0;

    /**
     * Sets the threshold of one temperature sensor; true when the service answers 0. A negative
     * threshold or an unknown sensor gives false and sends nothing.
     */
    virtual bool setTempThreshold(_EnumTempType_ type, int threshold) = 0;

    /** Returns the threshold of one temperature sensor; -1 for an unknown one. */
    virtual int getTempThreshold(_EnumTempType_ type) = 0;

    /** Sets the status of the over-the-air upgrade; true when the service answers 0. */
    virtual bool setOtaUpgradeStatus(int status) = 0;

    /** Returns the status of the over-the-air upgrade. */
    virtual int getOtaUpgradeStatus() = 0;

    /** Sets the status of the factory reset; true when the service answers 0. */
    virtual bool setFactoryResetStatus(int status) = 0;

    /** Returns the status of the factory reset. */
    virtual int getFactoryResetStatus() = 0;

    /** Returns the system setting word. */
    virtual int getSystemSetting() = 0;

    /**
     * Replaces the boot logo by the file at path (UTF-8, on the device, not null); true when the
     * service says so.
     */
    virtual bool replaceBootLogo(char* path) = 0;

    /** Brings the original boot logo back; true when the service says so. */
    virtual bool resetBootLogo() = 0;

    /**
     * Replaces the boot animation by the file at path (UTF-8, on the device, not null); true when
     * the service says so.
     */
    virtual bool replaceBootAnimation(char* path) = 0;

    /**
     * Replaces the boot video by the file at path (UTF-8, on the device, not null); true when the
     * service says so.
     */
    virtual bool replaceBootVideo(char* path) = 0;

    /** Returns the CPU temperature as text; empty when the command failed. */
    virtual String16 getCPUtemperature() = 0;

    /** Tells whether the compatibility test suite is running. */
    virtual bool isCtsRunning() = 0;

    /** Marks the compatibility test suite as running or not. */
    virtual int setCtsRunning(bool running) = 0;

    /** Switches the debug UART, a number passed on unchanged; true when the service says so. */
    virtual bool setDebugUartSwitch(int state) = 0;

    /** Returns the switch state of the debug UART. */
    virtual int getDebugUartSwitch() = 0;

    /** Sets the power-on alarm time, in the service's unit; true when the service says so. */
    virtual bool setAlarmTime(int time) = 0;

    /** Selects the IR input port; true when the service says so. */
    virtual bool setIrInPort(int port) = 0;

    /** Returns the IR input port. */
    virtual int getIrInPort() = 0;

    /** Tells whether verified boot is on. */
    virtual bool getDeviceAVBState() = 0;

    /** Switches verified boot; true unless the service answers 0. */
    virtual bool setDeviceAVBState(bool on) = 0;

    /** Switches ADB over USB; true unless the service answers 0. */
    virtual bool setUsbAdbState(bool on) = 0;

    /** Tells whether ADB over USB is on. */
    virtual bool getUsbAdbState() = 0;

    /** Tells whether the presence sensor wakes the board. */
    virtual bool isPirWakeupEnable() = 0;

    /** Lets the presence sensor wake the board; true unless the service answers 0. */
    virtual bool setPirWakeupEnable(bool on) = 0;

    /** Returns the delay of the presence sensor's wake-up, in the service's unit. */
    virtual int getPirWakeupDelay() = 0;

    /**
     * Sets the delay of the presence sensor's wake-up, in the service's unit; true when the service
     * says so.
     */
    virtual bool setPirWakeupDelay(int delay) = 0;

    /** Tells whether the remote control wakes the board. */
    virtual bool isRemoteCtrlWakeupEnable() = 0;

    /** Lets the remote control wake the board; true unless the service answers 0. */
    virtual bool setRemoteCtrlWakeupEnable(bool on) = 0;

    /** Lets RS-232 wake the board; true unless the service answers 0. */
    virtual bool setRS232WakeupEnable(bool on) = 0;

    /** Tells whether RS-232 wakes the board. */
    virtual bool isRs232WakeupEnable() = 0;

    /** Lets the RTC alarm wake the board; true unless the service answers 0. */
    virtual bool setRtcWakeupEnable(bool on) = 0;

    /** Tells whether the RTC alarm wakes the board. */
    virtual bool isRtcWakeupEnable() = 0;

    /** Switches the USB power; true unless the service answers 0. */
    virtual bool setUsbPowerEnable(bool on) = 0;

    /** Tells whether the USB power is on. */
    virtual bool getUsbPowerEnableSta() = 0;

    /** Suspends USB; true when the service says so. */
    virtual bool setUsbSuspend() = 0;

    /** Resumes USB; true when the service says so. */
    virtual bool setUsbResume() = 0;

    /** Brings the original boot animation back; true when the service says so. */
    virtual bool resetBootAnimation() = 0;

    /** Shows or hides the logo; true unless the service answers 0. */
    virtual bool setLogoDisplayState(bool on) = 0;

    /** Tells whether the logo is shown. */
    virtual bool getLogoDisplayState() = 0;

    /** Holds or releases the suspend-to-RAM wake lock; true unless the service answers 0. */
    virtual bool setSTRWakeLockState(bool on) = 0;

    /** Tells whether the suspend-to-RAM wake lock is held. */
    virtual bool getSTRWakeLockState() = 0;

    /** Tells whether plugging a signal in wakes the board. */
    virtual bool isSignalPluginWakeup() = 0;

    /** Lets plugging a signal in wake the board; true unless the service answers 0. */
    virtual bool setSignalPluginWakeup(bool on) = 0;

    /** Tells whether CEC wakes the board. */
    virtual bool isCecWakeupEnable() = 0;

    /** Lets CEC wake the board; true unless the service answers 0. */
    virtual bool setCecWakeupEnable(bool on) = 0;

    /** Tells whether the wake-up delay is linked to the presence sensor. */
    virtual bool getWakeDelayLinkToID() = 0;

    /** Links the wake-up delay to the presence sensor; true when the service says so. */
    virtual bool setWakeDelayLinkToID(bool on) = 0;

    /** Locks or unlocks one IR key; true when the service says so. */
    virtual bool setlockkeyIR(bool lock, int key) = 0;

    /** Sets the NFC status. */
    virtual int setNfcStatus(int status) = 0;

    /** Returns the NFC status. */
    virtual int getNfcStatus() = 0;

    /** Switches the boot logo; true when the service says so. */
    virtual bool setBootLogoEnable(bool on) = 0;

    /** Tells whether the boot logo is on. */
    virtual bool getBootLogoEnable() = 0;

    /** Brings the original boot video back; true when the service says so. */
    virtual bool resetBootVideo() = 0;

    /** Sets the transmitter of the HDMI switch. */
    virtual int enable_hdmi_switch_tx(int value) = 0;

    /** Sets the multi-PiP USB mode, a service-defined number; true when the service says so. */
    virtual bool setMultiPipUsbMode(int mode) = 0;

    /** Returns one AENA state. */
    virtual int getAenaState(int which) = 0;

    /** Resets the device. */
    virtual int doDeviceReset() = 0;

    /** Switches the monitoring of the NFC state; true when the service says so. */
    virtual bool monitorNfcState(bool on) = 0;

    /** Returns the path of the custom boot medium; empty when the command failed. */
    virtual String16 getCustomBootMediaPath() = 0;

    /** Selects the custom boot medium that is used; true when the service says so. */
    virtual bool setCustomBootMediaType(EnumCustomerBootMediaType type) = 0;

    /**
     * Keeps the CPU in performance mode; true when the service says so. The unit of hold is the
     * service's.
     */
    virtual bool keepCpuInPerformance(int hold) = 0;

    /** Ends the CPU's performance mode; true when the service says so. */
    virtual bool cancelCpuInPerformance() = 0;

    /**
     * Keeps the GPU in performance mode; true when the service says so. The unit of hold is the
     * service's.
     */
    virtual bool keepGpuInPerformance(int hold) = 0;

    /** Ends the GPU's performance mode; true when the service says so. */
    virtual bool cancelGpuInPerformance() = 0;

    /** Returns the refresh-rate choice, 0 to 2; 0 when the command failed or gave another. */
    virtual _EnumRefreshRate_ getHwcRefreshRate() = 0;

    /** Sets the refresh-rate choice; true when the service says so. */
    virtual bool setHwcRefreshRate(_EnumRefreshRate_ rate) = 0;

    /** Returns the power mode. */
    virtual int getPowerMode() = 0;

    /** Sets the power mode; true when the service says so. */
    virtual bool setPowerMode(int mode) = 0;

    /** Sets the kind of CEC control; true when the service says so. */
    virtual bool setCecCtlType(_EnumCecCtlType_ type) = 0;

    /** Sets the SAR power mode; true when the service says so. */
    virtual bool setSarPowerMode(int mode) = 0;

    /** Returns the SAR power mode. */
    virtual int getSarPowerMode() = 0;

    // The two operations behind the destructor keep that place in the virtual table.
    virtual ~ISystemCtrl() = default;

    /** Sets the type of the presence sensor; true when the service answers 0. */
    virtual bool setPirDeviceType(int type) = 0;

    /** Returns the type of the presence sensor. */
    virtual int getPirDeviceType() = 0;
};

}  // namespace android
