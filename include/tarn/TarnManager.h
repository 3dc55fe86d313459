#pragma once

#include <tarn/Export.h>
#include <tarn/ITarnManager.h>
#include <utils/Mutex.h>
#include <utils/StrongPointer.h>

#include <string>

namespace android {

class HwTarnClient;

/**
 * The manager: owns the transport and the controllers, and turns a command's arguments into a
 * request and its reply into a result. ITarnManager says what its operations do.
 *
 * A derived manager may override invoke() to see, record or answer every command. A controller and
 * its manager hold each other: once an accessor has been called, the manager is never destroyed.
 */
class TARN_EXPORT TarnManager : virtual public ITarnManager {
  public:
    /** Looks the hardware service up once; it need not be there yet. */
    TarnManager();

    /**
     * Stops the process's events. Release the last reference where no event is being delivered, or
     * on the thread that delivers it.
     */
    ~TarnManager() override;

    int invoke(const Parcel& request, Parcel* reply) override;

    ISystemCtrl* getSystemCtrl() override;
    IProjectId* getProjectId() override;
    IEasyTouch* getEasyTouch() override;
    IPropertiesCtrl* getPropertiesCtrl() override;
    ISourceCtrl* getSourceCtrl() override;
    IDeviceCtrl* getDeviceCtrl() override;
    IDevicePortCtrl* getDevicePortCtrl() override;
    INetworkCtrl* getNetworkCtrl() override;
    IBluetoothCtrl* getBluetoothCtrl() override;
    IAtCfgControl* getAtCfgControl() override;
    IKeyboardCtrl* getKeyboardCtrl() override;
    IAvManagerCtrl* getAvManagerCtrl() override;
    IFwUpgrade* getFwUpgrade() override;
    IRs232Ctrl* getRs232Ctrl() override;
    IRGBLedCtrl* getRGBLedCtrl() override;
    IAudioCtrl* getAudioCtrl() override;
    ITouchCtrl* getTouchCtrl() override;
    ITeaDspCtrl* getTeaDspCtrl() override;
    IAnionCtrl* getAnionCtrl() override;
    IBacklightCtrl* getBacklightCtrl() override;
    IVgaAdjust* getVgaAdjust() override;
    ICameraCtrl* getCameraCtrl() override;
    ISensorBoxCtrl* getSensorBoxCtrl() override;
    IIoBoxCtrl* getIoBoxCtrl() override;
    ITxbCtrl* getTxbCtrl() override;
    IGpioCtrl* getGpioCtrl() override;
    IXbugCtrl* getXbugCtrl() override;
    IRemoteCtrl* getRemoteCtrl() override;
    IPmsCtrl* getPmsCtrl() override;
    IExtendDisplayCtrl* getExtendDisplayCtrl() override;
    IPQCtrl* getPQCtrol() override;
    IPcModuleCtrl* getPcModuleCtrl() override;
    ISmartPenModeCtrl* getSmartPenModeCtrl() override;
    IMicrophoneCtrl* getMicrophoneCtrl() override;
    IBurnKeyCtrl* getBurnKeyCtrl() override;
    IBurnMacCtrl* getBurnMacCtrl() override;
    IFwTouchCtrl* getFwTouchCtrl() override;
    ILandscapeCtrl* getLandscapeCtrl() override;
    IBitmotionCtrl* getBitmotionCtrl() override;
    ISoundScreenAngleCtrl* getSoundScreenAngleCtrl() override;
    IAiNoiseCtrl* getAiNoiseCtrl() override;
    IAoipCtrl* getAoipCtrl() override;
    ILightEffectCtrl* getLightEffectCtrl() override;
    IUwbCtrl* getUwbCtrl() override;
    ISuspendCtrl* getSuspendCtrl() override;
    ISerialCtrl* getSerialCtrl() override;
    IDebugCtrl* getDebugCtrl() override;

    int postEvent(int what, Parcel& data) override;
    int registerListener(ITarnListener* listener) override;
    int unRegisterListener(ITarnListener* listener) override;
    int isTarnReady() override;
    int createTarnMsgManager() override;
    int removeTarnMsgManager() override;

    /**
     * The command family: sends cmd and the arguments in their order through invoke(). Any thread
     * may call; a call blocks until the service has answered. A status of -1 is the one failure;
     * every other status is a success. What a reply lacks reads as 0, false or empty.
     *
     * Int returns the status, or -1.
     */
    int exeCmdSet_Int(int cmd);
    int exeCmdSet_Int(int cmd, int a);
    int exeCmdSet_Int(int cmd, bool b);
    int exeCmdSet_Int(int cmd, int a, int b);
    int exeCmdSet_Int(int cmd, int a, bool b);
    int exeCmdSet_Int(int cmd, int a, int b, int c);
    int exeCmdSet_Int(int cmd, const Parcel& args);

    /** Bool returns the boolean after the status (any number but 0 is true), or false. */
    bool exeCmdSet_Bool(int cmd);
    bool exeCmdSet_Bool(int cmd, int a);
    bool exeCmdSet_Bool(int cmd, bool b);
    bool exeCmdSet_Bool(int cmd, int a, bool b);
    bool exeCmdSet_Bool(int cmd, int a, int b);

    /** Str returns the text after the status as UTF-8, or an empty string. */
    std::string exeCmdSet_Str(int cmd);
    std::string exeCmdSet_Str(int cmd, int a);

    /**
     * Parcel replaces out's contents with what follows the status, at position 0, and returns 0 for
     * every status but -1; on a failure it returns -1 and leaves out alone. A reply without even a
     * status leaves out alone too and returns 0. A null out discards the reply.
     */
    int exeCmdSet_Parcel(int cmd, Parcel* out);
    int exeCmdSet_Parcel(int cmd, const Parcel& args, Parcel* out);
    int exeCmdSet_Parcel(int cmd, int a, Parcel* out);
    int exeCmdSet_Parcel(int cmd, int a, int b, Parcel* out);

    /**
     * Array sends the count and the values and returns the status, or -1; what follows the status
     * is discarded. With no values (null, or count below 1) it sends nothing and returns 0.
     */
    int exeCmdSet_Array(int cmd, int* values, int count);

  protected:
    /**
     * A manager on a transport of the caller's, or on none (null): then every command fails and the
     * operations for events return -1, those for listeners 0, all without a log line.
     */
    explicit TarnManager(const sp<HwTarnClient>& client);

  private:
    sp<HwTarnClient> mHwTarnClient;

    sp<ISystemCtrl> mSystemCtrl;
    sp<IProjectId> mProjectId;
    sp<IEasyTouch> mEasyTouch;
    sp<IPropertiesCtrl> mPropertiesCtrl;
    sp<ISourceCtrl> mSourceCtrl;
    sp<IDeviceCtrl> mDeviceCtrl;
    sp<IDevicePortCtrl> mDevicePortCtrl;
    sp<INetworkCtrl> mNetworkCtrl;
    sp<IBluetoothCtrl> mBluetoothCtrl;
    sp<IAtCfgControl> mAtCfgControl;
    sp<IKeyboardCtrl> mKeyboardCtrl;
    sp<IAvManagerCtrl> mAvManagerCtrl;
    sp<IFwUpgrade> mFwUpgrade;
    sp<IRs232Ctrl> mRs232Ctrl;
    sp<IRGBLedCtrl> mRGBLedCtrl;
    sp<IAudioCtrl> mAudioCtrl;
    sp<ITouchCtrl> mTouchCtrl;
    sp<ITeaDspCtrl> mTeaDspCtrl;
    sp<IAnionCtrl> mAnionCtrl;
    sp<IBacklightCtrl> mBacklightCtrl;
    sp<IVgaAdjust> mVgaAdjust;
    sp<ICameraCtrl> mCameraCtrl;
    sp<ISensorBoxCtrl> mSensorBoxCtrl;
    sp<IIoBoxCtrl> mIoBoxCtrl;
    sp<ITxbCtrl> mTxbCtrl;
    sp<IXbugCtrl> mXbugCtrl;
    sp<IRemoteCtrl> mRemoteCtrl;
    sp<IPmsCtrl> mPmsCtrl;
    sp<IExtendDisplayCtrl> mExtendDisplayCtrl;
    sp<IPQCtrl> mPQCtrl;
    sp<IPcModuleCtrl> mPcModuleCtrl;
    sp<ISmartPenModeCtrl> mSmartPenModeCtrl;
    sp<IMicrophoneCtrl> mMicrophoneCtrl;
    sp<IBurnKeyCtrl> mBurnKeyCtrl;
    sp<IBurnMacCtrl> mBurnMacCtrl;
    sp<IFwTouchCtrl> mFwTouchCtrl;
    sp<ILandscapeCtrl> mLandscapeCtrl;
    sp<IBitmotionCtrl> mBitmotionCtrl;
    sp<ISoundScreenAngleCtrl> mSoundScreenAngleCtrl;
    sp<IAiNoiseCtrl> mAiNoiseCtrl;
    sp<IAoipCtrl> mAoipCtrl;
    sp<ILightEffectCtrl> mLightEffectCtrl;
    sp<IUwbCtrl> mUwbCtrl;
    sp<ISuspendCtrl> mSuspendCtrl;
    sp<IGpioCtrl> mGpioCtrl;
    sp<ISerialCtrl> mSerialCtrl;
    sp<IDebugCtrl> mDebugCtrl;

    // One lock per accessor; camera, sensor box, serial and I/O box share the camera's.
    Mutex mSystemCtrlLock;
    Mutex mProjectIdLock;
    Mutex mEasyTouchLock;
    Mutex mPropertiesCtrlLock;
    Mutex mSourceCtrlLock;
    Mutex mDeviceCtrlLock;
    Mutex mDevicePortCtrlLock;
    Mutex mNetworkCtrlLock;
    Mutex mBluetoothCtrlLock;
    Mutex mAtCfgControlLock;
    Mutex mKeyboardCtrlLock;
    Mutex mAvManagerCtrlLock;
    Mutex mFwUpgradeLock;
    Mutex mRs232CtrlLock;
    Mutex mRGBLedCtrlLock;
    Mutex mAudioCtrlLock;
    Mutex mTouchCtrlLock;
    Mutex mTeaDspCtrlLock;
    Mutex mAnionCtrlLock;
    Mutex mBacklightCtrlLock;
    Mutex mVgaAdjustLock;
    Mutex mCameraCtrlLock;
    Mutex mTxbCtrlLock;
    Mutex mXbugCtrlLock;
    Mutex mRemoteCtrlLock;
    Mutex mPmsCtrlLock;
    Mutex mExtendDisplayCtrlLock;
    Mutex mPQCtrlLock;
    Mutex mPcModuleCtrlLock;
    Mutex mSmartPenModeCtrlLock;
    Mutex mMicrophoneCtrlLock;
    Mutex mBurnKeyCtrlLock;
    Mutex mBurnMacCtrlLock;
    Mutex mFwTouchCtrlLock;
    Mutex mLandscapeCtrlLock;
    Mutex mBitmotionCtrlLock;
    Mutex mSoundScreenAngleCtrlLock;
    Mutex mAiNoiseCtrlLock;
    Mutex mAoipCtrlLock;
    Mutex mLightEffectCtrlLock;
    Mutex mUwbCtrlLock;
    Mutex mSuspendCtrlLock;
    Mutex mGpioCtrlLock;
    Mutex mDebugCtrlLock;
};

}  // namespace android
