#pragma once

#include <binder/Parcel.h>
#include <tarn/Export.h>
#include <utils/RefBase.h>

class ITarnListener;

namespace android {

class IAiNoiseCtrl;
class IAnionCtrl;
class IAoipCtrl;
class IAtCfgControl;
class IAudioCtrl;
class IAvManagerCtrl;
class IBacklightCtrl;
class IBitmotionCtrl;
class IBluetoothCtrl;
class IBurnKeyCtrl;
class IBurnMacCtrl;
class ICameraCtrl;
class IDebugCtrl;
class IDeviceCtrl;
class IDevicePortCtrl;
class IEasyTouch;
class IExtendDisplayCtrl;
class IFwTouchCtrl;
class IFwUpgrade;
class IGpioCtrl;
class IIoBoxCtrl;
class IKeyboardCtrl;
class ILandscapeCtrl;
class ILightEffectCtrl;
class IMicrophoneCtrl;
class INetworkCtrl;
class IPQCtrl;
class IPcModuleCtrl;
class IPmsCtrl;
class IProjectId;
class IPropertiesCtrl;
class IRGBLedCtrl;
class IRemoteCtrl;
class IRs232Ctrl;
class ISensorBoxCtrl;
class ISerialCtrl;
class ISmartPenModeCtrl;
class ISoundScreenAngleCtrl;
class ISourceCtrl;
class ISuspendCtrl;
class ISystemCtrl;
class ITeaDspCtrl;
class ITouchCtrl;
class ITxbCtrl;
class IUwbCtrl;
class IVgaAdjust;
class IXbugCtrl;

/**
 * The process's way to the board, from TarnCreator::create(). Any thread may call any operation.
 *
 * A command blocks until the service has answered. It fails when the service can't be reached, has
 * died or answers a status of -1; each interface says what a failed call returns, mostly -1, false
 * or an empty text. Any other status, a negative one too, is a success, and a value of -1 can't be
 * told from a failure. What a reply lacks reads as 0, false or empty; a list is as long as the
 * reply says, up to what the largest reply, 1,040,384 bytes, could hold. A transport error of
 * another kind counts as an empty reply, so its status reads as 0, a success.
 *
 * A command that can't reach the service, or finds it dead, logs error lines; a status of -1 does
 * not. The connection belongs to the process and is kept: once the service has died every command
 * of every manager fails, even when the service is back and isTarnReady() says so. It is dropped
 * when a manager ends; one that has handed out a controller never does, since the two hold each
 * other. After a restart events come again only after another createTarnMsgManager(). TarnRecovery
 * takes up both again.
 *
 * On a device, while a service that is declared there has not started yet, what looks it up may
 * wait for it: making the first manager, isTarnReady(), and the first command.
 *
 * An accessor creates its controller on the first call, returns the same object on every later one,
 * needs no service and never returns null. The manager owns the controllers; a caller that keeps
 * one longer wraps the pointer in an sp<> of its own. Accessors don't wait for each other, except
 * getCameraCtrl(), getSensorBoxCtrl(), getIoBoxCtrl() and getSerialCtrl(), which share a lock.
 */
class TARN_EXPORT ITarnManager : public virtual RefBase {
  public:
    /**
     * Sends one command: an int32 code and its arguments, without an interface token. An empty
     * request is not sent; reply is then read as it came.
     *
     * @param request the command; copied.
     * @param reply   receives the service's reply, positioned at its status word. Must not be null.
     * @return the status word of the reply; -1, with reply left alone, when the service can't be
     * reached or has died.
     */
    virtual int invoke(const Parcel& request, Parcel* reply) = 0;

    /** Settings of the whole board: SELinux, temperature, boot media, wake-up, power. */
    virtual ISystemCtrl* getSystemCtrl() = 0;

    /** The panel product that the board is built into, and its configuration sets. */
    virtual IProjectId* getProjectId() = 0;

    /** The easy-touch feature's log information. */
    virtual IEasyTouch* getEasyTouch() = 0;

    /** System properties, through the service. */
    virtual IPropertiesCtrl* getPropertiesCtrl() = 0;

    /** The input sources: channel, plug, signal, EDID version. */
    virtual ISourceCtrl* getSourceCtrl() = 0;

    /** Device lists and names, the USB hub, device and USB power, the NFC tag. */
    virtual IDeviceCtrl* getDeviceCtrl() = 0;

    /** Device ports by name. */
    virtual IDevicePortCtrl* getDevicePortCtrl() = 0;

    /** Wired network, wake-on-LAN, VLAN, network sharing. */
    virtual INetworkCtrl* getNetworkCtrl() = 0;

    /** Wake-up by Bluetooth Low Energy. */
    virtual IBluetoothCtrl* getBluetoothCtrl() = 0;

    /** Widevine keybox, attestation key, and named values of the configuration store. */
    virtual IAtCfgControl* getAtCfgControl() = 0;

    /** Which keyboards are there. */
    virtual IKeyboardCtrl* getKeyboardCtrl() = 0;

    /** The external audio-video unit: DSP, codec board, microphone array, camera. */
    virtual IAvManagerCtrl* getAvManagerCtrl() = 0;

    /** Upgrades of the board's firmware targets. */
    virtual IFwUpgrade* getFwUpgrade() = 0;

    /** Board facts that the smart RS-232 commands report; the ports are getSerialCtrl(). */
    virtual IRs232Ctrl* getRs232Ctrl() = 0;

    /** The RGB status LEDs. */
    virtual IRGBLedCtrl* getRGBLedCtrl() = 0;

    /** Volume, equaliser, routing, microphone and sound-card switches. */
    virtual IAudioCtrl* getAudioCtrl() = 0;

    /** The touch frame: pens, areas without touch, HID mode. */
    virtual ITouchCtrl* getTouchCtrl() = 0;

    /** The external conference audio DSP and the devices attached to it. */
    virtual ITeaDspCtrl* getTeaDspCtrl() = 0;

    /** The anion (negative-ion) generator. */
    virtual IAnionCtrl* getAnionCtrl() = 0;

    /** The panel's brightness and its limits. */
    virtual IBacklightCtrl* getBacklightCtrl() = 0;

    /** Picture adjustment of the VGA input. */
    virtual IVgaAdjust* getVgaAdjust() = 0;

    /** The panel's cameras. */
    virtual ICameraCtrl* getCameraCtrl() = 0;

    /** The external sensor boxes. */
    virtual ISensorBoxCtrl* getSensorBoxCtrl() = 0;

    /** The external I/O extension boxes. */
    virtual IIoBoxCtrl* getIoBoxCtrl() = 0;

    /** The TXB pen and sensor board. */
    virtual ITxbCtrl* getTxbCtrl() = 0;

    /** The GPIO pins. */
    virtual IGpioCtrl* getGpioCtrl() = 0;

    /** Diagnostics of the hardware service itself. */
    virtual IXbugCtrl* getXbugCtrl() = 0;

    /** The remote control: its switch and its parameters. */
    virtual IRemoteCtrl* getRemoteCtrl() = 0;

    /** Power management: what woke the board and what may wake it. */
    virtual IPmsCtrl* getPmsCtrl() = 0;

    /** The extended (second) display output and the USB-C video output. */
    virtual IExtendDisplayCtrl* getExtendDisplayCtrl() = 0;

    /** Picture quality. The name is spelt so; the interface is IPQCtrl. */
    virtual IPQCtrl* getPQCtrol() = 0;

    /** The slot-in PC module. */
    virtual IPcModuleCtrl* getPcModuleCtrl() = 0;

    /** The smart pen's mode. */
    virtual ISmartPenModeCtrl* getSmartPenModeCtrl() = 0;

    /** The built-in microphones. */
    virtual IMicrophoneCtrl* getMicrophoneCtrl() = 0;

    /** Software keys in the secure storage. */
    virtual IBurnKeyCtrl* getBurnKeyCtrl() = 0;

    /** MAC addresses in the secure storage. */
    virtual IBurnMacCtrl* getBurnMacCtrl() = 0;

    /** Touch frames, their drivers and firmware, read-only; settings are getTouchCtrl(). */
    virtual IFwTouchCtrl* getFwTouchCtrl() = 0;

    /** Which applications the service treats as landscape applications. */
    virtual ILandscapeCtrl* getLandscapeCtrl() = 0;

    /** An attached motion-sensing device. */
    virtual IBitmotionCtrl* getBitmotionCtrl() = 0;

    /** The angles of the sound screen. */
    virtual ISoundScreenAngleCtrl* getSoundScreenAngleCtrl() = 0;

    /** The level of the AI noise suppression. */
    virtual IAiNoiseCtrl* getAiNoiseCtrl() = 0;

    /** The audio-over-IP unit. */
    virtual IAoipCtrl* getAoipCtrl() = 0;

    /** The light effects of the light devices; status LEDs are getRGBLedCtrl(). */
    virtual ILightEffectCtrl* getLightEffectCtrl() = 0;

    /** The ultra-wideband remote control and its dongle. */
    virtual IUwbCtrl* getUwbCtrl() = 0;

    /** Suspend and fake-standby states. */
    virtual ISuspendCtrl* getSuspendCtrl() = 0;

    /** The serial ports. */
    virtual ISerialCtrl* getSerialCtrl() = 0;

    /** The super-root debug state. */
    virtual IDebugCtrl* getDebugCtrl() = 0;

    /**
     * Sends an event of the application's own towards the service.
     *
     * @param what service-defined number of the event.
     * @param data its bytes, at most 1,040,384 of them; may be empty.
     * @return 0 on success; -1, with error lines in the log, when data is too long or the service
     * can't be reached or has died.
     */
    virtual int postEvent(int what, Parcel& data) = 0;

    /**
     * Registers a listener for the board's events; they start with createTarnMsgManager(). The
     * listener is called on the library's event thread and is not owned. Registering it again
     * changes nothing; null is ignored.
     *
     * @return 0, always.
     */
    virtual int registerListener(ITarnListener* listener) = 0;

    /**
     * Removes a listener; null is ignored. An event that is being delivered may still reach it.
     * Always returns 0.
     */
    virtual int unRegisterListener(ITarnListener* listener) = 0;

    /**
     * Looks the hardware service up afresh, which may wait as said above.
     *
     * @return 0 when it is there, though the process's connection may still be the dead one; -1
     * when it is not.
     */
    virtual int isTarnReady() = 0;

    /**
     * Starts the delivery of events: registers with the service and starts the event thread. Every
     * call starts one more thread, and several deliver side by side.
     *
     * @return 0 on success; -1 when the service can't be reached or has died, or no thread could be
     * started.
     */
    virtual int createTarnMsgManager() = 0;

    /** Ends the delivery of events; the event thread idles on. Returns 0; -1 without transport. */
    virtual int removeTarnMsgManager() = 0;

    virtual ~ITarnManager() = default;
};

}  // namespace android
