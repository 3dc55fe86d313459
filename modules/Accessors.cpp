#include <tarn/TarnManager.h>

#include "modules/AiNoiseCtrl.h"
#include "modules/AnionCtrl.h"
#include "modules/AoipCtrl.h"
#include "modules/AtCfgControl.h"
#include "modules/AudioCtrl.h"
#include "modules/AvManagerCtrl.h"
#include "modules/BacklightCtrl.h"
#include "modules/BitmotionCtrl.h"
#include "modules/BluetoothCtrl.h"
#include "modules/BurnKeyCtrl.h"
#include "modules/BurnMacCtrl.h"
#include "modules/CameraCtrl.h"
#include "modules/DebugCtrl.h"
#include "modules/DeviceCtrl.h"
#include "modules/DevicePortCtrl.h"
#include "modules/EasyTouch.h"
#include "modules/ExtendDisplayCtrl.h"
#include "modules/FwTouchCtrl.h"
#include "modules/FwUpgrade.h"
#include "modules/GpioCtrl.h"
#include "modules/IoBoxCtrl.h"
#include "modules/KeyboardCtrl.h"
#include "modules/LandscapeCtrl.h"
#include "modules/LightEffectCtrl.h"
#include "modules/MicrophoneCtrl.h"
#include "modules/NetworkCtrl.h"
#include "modules/PQCtrl.h"
#include "modules/PcModuleCtrl.h"
#include "modules/PmsCtrl.h"
#include "modules/ProjectId.h"
#include "modules/PropertiesCtrl.h"
#include "modules/RGBLedCtrl.h"
#include "modules/RemoteCtrl.h"
#include "modules/Rs232Ctrl.h"
#include "modules/SensorBoxCtrl.h"
#include "modules/SerialCtrl.h"
#include "modules/SmartPenModeCtrl.h"
#include "modules/SoundScreenAngleCtrl.h"
#include "modules/SourceCtrl.h"
#include "modules/SuspendCtrl.h"
#include "modules/SystemCtrl.h"
#include "modules/TeaDspCtrl.h"
#include "modules/TouchCtrl.h"
#include "modules/TxbCtrl.h"
#include "modules/UwbCtrl.h"
#include "modules/VgaAdjust.h"
#include "modules/XbugCtrl.h"

namespace android {

namespace {

/** The controller in *slot, created on the first call; the manager keeps the strong reference. */
template <typename Controller, typename Interface>
Interface* obtain(TarnManager* manager, sp<Interface>* slot, Mutex* lock) {
    AutoMutex guard(*lock);
    if (*slot == nullptr) *slot = new Controller(sp<TarnManager>(manager));
    return slot->get();
}

}  // namespace

ISystemCtrl* TarnManager::getSystemCtrl() {
    return obtain<SystemCtrl>(this, &mSystemCtrl, &mSystemCtrlLock);
}

IProjectId* TarnManager::getProjectId() {
    return obtain<ProjectId>(this, &mProjectId, &mProjectIdLock);
}

IEasyTouch* TarnManager::getEasyTouch() {
    return obtain<EasyTouch>(this, &mEasyTouch, &mEasyTouchLock);
}

IPropertiesCtrl* TarnManager::getPropertiesCtrl() {
    return obtain<PropertiesCtrl>(this, &mPropertiesCtrl, &mPropertiesCtrlLock);
}

ISourceCtrl* TarnManager::getSourceCtrl() {
    return obtain<SourceCtrl>(this, &mSourceCtrl, &mSourceCtrlLock);
}

IDeviceCtrl* TarnManager::getDeviceCtrl() {
    return obtain<DeviceCtrl>(this, &mDeviceCtrl, &mDeviceCtrlLock);
}

IDevicePortCtrl* TarnManager::getDevicePortCtrl() {
    return obtain<DevicePortCtrl>(this, &mDevicePortCtrl, &mDevicePortCtrlLock);
}

INetworkCtrl* TarnManager::getNetworkCtrl() {
    return obtain<NetworkCtrl>(this, &mNetworkCtrl, &mNetworkCtrlLock);
}

IBluetoothCtrl* TarnManager::getBluetoothCtrl() {
    return obtain<BluetoothCtrl>(this, &mBluetoothCtrl, &mBluetoothCtrlLock);
}

IAtCfgControl* TarnManager::getAtCfgControl() {
    return obtain<AtCfgControl>(this, &mAtCfgControl, &mAtCfgControlLock);
}

IKeyboardCtrl* TarnManager::getKeyboardCtrl() {
    return obtain<KeyboardCtrl>(this, &mKeyboardCtrl, &mKeyboardCtrlLock);
}

IAvManagerCtrl* TarnManager::getAvManagerCtrl() {
    return obtain<AvManagerCtrl>(this, &mAvManagerCtrl, &mAvManagerCtrlLock);
}

IFwUpgrade* TarnManager::getFwUpgrade() {
    return obtain<FwUpgrade>(this, &mFwUpgrade, &mFwUpgradeLock);
}

IRs232Ctrl* TarnManager::getRs232Ctrl() {
    return obtain<Rs232Ctrl>(this, &mRs232Ctrl, &mRs232CtrlLock);
}

IRGBLedCtrl* TarnManager::getRGBLedCtrl() {
    return obtain<RGBLedCtrl>(this, &mRGBLedCtrl, &mRGBLedCtrlLock);
}

IAudioCtrl* TarnManager::getAudioCtrl() {
    return obtain<AudioCtrl>(this, &mAudioCtrl, &mAudioCtrlLock);
}

ITouchCtrl* TarnManager::getTouchCtrl() {
    return obtain<TouchCtrl>(this, &mTouchCtrl, &mTouchCtrlLock);
}

ITeaDspCtrl* TarnManager::getTeaDspCtrl() {
    return obtain<TeaDspCtrl>(this, &mTeaDspCtrl, &mTeaDspCtrlLock);
}

IAnionCtrl* TarnManager::getAnionCtrl() {
    return obtain<AnionCtrl>(this, &mAnionCtrl, &mAnionCtrlLock);
}

IBacklightCtrl* TarnManager::getBacklightCtrl() {
    return obtain<BacklightCtrl>(this, &mBacklightCtrl, &mBacklightCtrlLock);
}

IVgaAdjust* TarnManager::getVgaAdjust() {
    return obtain<VgaAdjust>(this, &mVgaAdjust, &mVgaAdjustLock);
}

ICameraCtrl* TarnManager::getCameraCtrl() {
    return obtain<CameraCtrl>(this, &mCameraCtrl, &mCameraCtrlLock);
}

ISensorBoxCtrl* TarnManager::getSensorBoxCtrl() {
    return obtain<SensorBoxCtrl>(this, &mSensorBoxCtrl, &mCameraCtrlLock);
}

IIoBoxCtrl* TarnManager::getIoBoxCtrl() {
    return obtain<IoBoxCtrl>(this, &mIoBoxCtrl, &mCameraCtrlLock);
}

ITxbCtrl* TarnManager::getTxbCtrl() {
    return obtain<TxbCtrl>(this, &mTxbCtrl, &mTxbCtrlLock);
}

IGpioCtrl* TarnManager::getGpioCtrl() {
    return obtain<GpioCtrl>(this, &mGpioCtrl, &mGpioCtrlLock);
}

IXbugCtrl* TarnManager::getXbugCtrl() {
    return obtain<XbugCtrl>(this, &mXbugCtrl, &mXbugCtrlLock);
}

IRemoteCtrl* TarnManager::getRemoteCtrl() {
    return obtain<RemoteCtrl>(this, &mRemoteCtrl, &mRemoteCtrlLock);
}

IPmsCtrl* TarnManager::getPmsCtrl() {
    return obtain<PmsCtrl>(this, &mPmsCtrl, &mPmsCtrlLock);
}

IExtendDisplayCtrl* TarnManager::getExtendDisplayCtrl() {
    return obtain<ExtendDisplayCtrl>(this, &mExtendDisplayCtrl, &mExtendDisplayCtrlLock);
}

IPQCtrl* TarnManager::getPQCtrol() {
    return obtain<PQCtrl>(this, &mPQCtrl, &mPQCtrlLock);
}

IPcModuleCtrl* TarnManager::getPcModuleCtrl() {
    return obtain<PcModuleCtrl>(this, &mPcModuleCtrl, &mPcModuleCtrlLock);
}

ISmartPenModeCtrl* TarnManager::getSmartPenModeCtrl() {
    return obtain<SmartPenModeCtrl>(this, &mSmartPenModeCtrl, &mSmartPenModeCtrlLock);
}

IMicrophoneCtrl* TarnManager::getMicrophoneCtrl() {
    return obtain<MicrophoneCtrl>(this, &mMicrophoneCtrl, &mMicrophoneCtrlLock);
}

IBurnKeyCtrl* TarnManager::getBurnKeyCtrl() {
    return obtain<BurnKeyCtrl>(this, &mBurnKeyCtrl, &mBurnKeyCtrlLock);
}

IBurnMacCtrl* TarnManager::getBurnMacCtrl() {
    return obtain<BurnMacCtrl>(this, &mBurnMacCtrl, &mBurnMacCtrlLock);
}

IFwTouchCtrl* TarnManager::getFwTouchCtrl() {
    return obtain<FwTouchCtrl>(this, &mFwTouchCtrl, &mFwTouchCtrlLock);
}

ILandscapeCtrl* TarnManager::getLandscapeCtrl() {
    return obtain<LandscapeCtrl>(this, &mLandscapeCtrl, &mLandscapeCtrlLock);
}

IBitmotionCtrl* TarnManager::getBitmotionCtrl() {
    return obtain<BitmotionCtrl>(this, &mBitmotionCtrl, &mBitmotionCtrlLock);
}

ISoundScreenAngleCtrl* TarnManager::getSoundScreenAngleCtrl() {
    return obtain<SoundScreenAngleCtrl>(this, &mSoundScreenAngleCtrl, &mSoundScreenAngleCtrlLock);
}

IAiNoiseCtrl* TarnManager::getAiNoiseCtrl() {
    return obtain<AiNoiseCtrl>(this, &mAiNoiseCtrl, &mAiNoiseCtrlLock);
}

IAoipCtrl* TarnManager::getAoipCtrl() {
    return obtain<AoipCtrl>(this, &mAoipCtrl, &mAoipCtrlLock);
}

ILightEffectCtrl* TarnManager::getLightEffectCtrl() {
    return obtain<LightEffectCtrl>(this, &mLightEffectCtrl, &mLightEffectCtrlLock);
}

IUwbCtrl* TarnManager::getUwbCtrl() {
    return obtain<UwbCtrl>(this, &mUwbCtrl, &mUwbCtrlLock);
}

ISuspendCtrl* TarnManager::getSuspendCtrl() {
    return obtain<SuspendCtrl>(this, &mSuspendCtrl, &mSuspendCtrlLock);
}

ISerialCtrl* TarnManager::getSerialCtrl() {
    return obtain<SerialCtrl>(this, &mSerialCtrl, &mCameraCtrlLock);
}

IDebugCtrl* TarnManager::getDebugCtrl() {
    return obtain<DebugCtrl>(this, &mDebugCtrl, &mDebugCtrlLock);
}

}  // namespace android
