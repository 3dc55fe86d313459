#pragma once

#include <binder/Parcel.h>
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
 * The process's way to the board, from TarnCreator::create().
 *
 * An accessor creates its controller on the first call, returns the same object on every later
 * one and never returns null. The manager owns the controllers; a caller that keeps one longer
 * wraps the pointer in an sp<> of its own. Any thread may call any operation.
 */
class ITarnManager : public virtual RefBase {
  public:
    /**
     * Sends one command: an int32 code and its arguments, without an interface token.
     *
     * @param request the command; copied.
     * @param reply   receives the service's reply, positioned at its status word.
     * @return the status word of the reply; -1 also when the service can't be reached.
     */
    virtual int invoke(const Parcel& request, Parcel* reply) = 0;

    virtual ISystemCtrl* getSystemCtrl() = 0;
    virtual IProjectId* getProjectId() = 0;
    virtual IEasyTouch* getEasyTouch() = 0;
    virtual IPropertiesCtrl* getPropertiesCtrl() = 0;
    virtual ISourceCtrl* getSourceCtrl() = 0;
    virtual IDeviceCtrl* getDeviceCtrl() = 0;
    virtual IDevicePortCtrl* getDevicePortCtrl() = 0;
    virtual INetworkCtrl* getNetworkCtrl() = 0;
    virtual IBluetoothCtrl* getBluetoothCtrl() = 0;
    virtual IAtCfgControl* getAtCfgControl() = 0;
    virtual IKeyboardCtrl* getKeyboardCtrl() = 0;
    virtual IAvManagerCtrl* getAvManagerCtrl() = 0;
    virtual IFwUpgrade* getFwUpgrade() = 0;
    virtual IRs232Ctrl* getRs232Ctrl() = 0;
    virtual IRGBLedCtrl* getRGBLedCtrl() = 0;
    virtual IAudioCtrl* getAudioCtrl() = 0;
    virtual ITouchCtrl* getTouchCtrl() = 0;
    virtual ITeaDspCtrl* getTeaDspCtrl() = 0;
    virtual IAnionCtrl* getAnionCtrl() = 0;
    virtual IBacklightCtrl* getBacklightCtrl() = 0;
    virtual IVgaAdjust* getVgaAdjust() = 0;
    virtual ICameraCtrl* getCameraCtrl() = 0;
    virtual ISensorBoxCtrl* getSensorBoxCtrl() = 0;
    virtual IIoBoxCtrl* getIoBoxCtrl() = 0;
    virtual ITxbCtrl* getTxbCtrl() = 0;
    virtual IGpioCtrl* getGpioCtrl() = 0;
    virtual IXbugCtrl* getXbugCtrl() = 0;
    virtual IRemoteCtrl* getRemoteCtrl() = 0;
    virtual IPmsCtrl* getPmsCtrl() = 0;
    virtual IExtendDisplayCtrl* getExtendDisplayCtrl() = 0;
    virtual IPQCtrl* getPQCtrol() = 0;
    virtual IPcModuleCtrl* getPcModuleCtrl() = 0;
    virtual ISmartPenModeCtrl* getSmartPenModeCtrl() = 0;
    virtual IMicrophoneCtrl* getMicrophoneCtrl() = 0;
    virtual IBurnKeyCtrl* getBurnKeyCtrl() = 0;
    virtual IBurnMacCtrl* getBurnMacCtrl() = 0;
    virtual IFwTouchCtrl* getFwTouchCtrl() = 0;
    virtual ILandscapeCtrl* getLandscapeCtrl() = 0;
    virtual IBitmotionCtrl* getBitmotionCtrl() = 0;
    virtual ISoundScreenAngleCtrl* getSoundScreenAngleCtrl() = 0;
    virtual IAiNoiseCtrl* getAiNoiseCtrl() = 0;
    virtual IAoipCtrl* getAoipCtrl() = 0;
    virtual ILightEffectCtrl* getLightEffectCtrl() = 0;
    virtual IUwbCtrl* getUwbCtrl() = 0;
    virtual ISuspendCtrl* getSuspendCtrl() = 0;
    virtual ISerialCtrl* getSerialCtrl() = 0;
    virtual IDebugCtrl* getDebugCtrl() = 0;

    /**
     * Sends an event of the application's own towards the service.
     *
     * @param what service-defined number of the event.
     * @param data its bytes, at most 1,040,384 of them.
     * @return 0 on success; -1 when data is too long or the service can't be reached.
     */
    virtual int postEvent(int what, Parcel& data) = 0;

    /**
     * Registers a listener for the board's events; they start with createTarnMsgManager().
     * The listener is called on the library's event thread and is not owned. Registering it again
     * changes nothing; null is ignored.
     *
     * @return 0.
     */
    virtual int registerListener(ITarnListener* listener) = 0;

    /** Removes a listener; an event that is being delivered may still reach it. Returns 0. */
    virtual int unRegisterListener(ITarnListener* listener) = 0;

    /** Looks the hardware service up: 0 when it is there, -1 when not. */
    virtual int isTarnReady() = 0;

    /**
     * Starts the delivery of events: registers with the service and starts the event thread.
     * Every call starts one more thread, and several deliver side by side.
     *
     * @return 0 on success; -1 when the service can't be reached or no thread could be started.
     */
    virtual int createTarnMsgManager() = 0;

    /** Ends the delivery of events; the event thread idles on. Returns 0; -1 without transport. */
    virtual int removeTarnMsgManager() = 0;

    virtual ~ITarnManager() = default;
};

}  // namespace android
