#include <string.h>
#include <tarn/TarnManager.h>

#include <new>

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

/** A strong reference in the manager as the word that it is. */
using Slot __attribute__((__may_alias__)) = void*;

/** Makes the controller; the strong reference that its caller puts into a slot. */
template <typename Controller, typename Interface>
void* make(const sp<TarnManager>& manager) {
    static_assert(sizeof(sp<Interface>) == sizeof(Slot));
    alignas(sp<Interface>) unsigned char reference[sizeof(Slot)];
    new (reference) sp<Interface>(new Controller(manager));  // never destroyed: the slot has it
    void* held = nullptr;
    memcpy(&held, reference, sizeof(held));
    return held;
}

/** The controller in *slot, made on the first call. From then on nothing shared is written. */
void* obtain(TarnManager* manager, Mutex* lock, void* (*make)(const sp<TarnManager>&), Slot* slot) {
    void* held = __atomic_load_n(slot, __ATOMIC_ACQUIRE);
    if (held != nullptr) return held;
    AutoMutex guard(*lock);
    held = *slot;
    if (held == nullptr) {
        held = make(sp<TarnManager>(manager));
        __atomic_store_n(slot, held, __ATOMIC_RELEASE);
    }
    return held;
}

}  // namespace

// clang-format off
// NOLINTBEGIN(bugprone-macro-parentheses): names of classes and methods stand in no parentheses.
#define ACCESSOR(name, Controller, lock)                                                     \
    I##Controller* TarnManager::name() {                                                     \
        return static_cast<I##Controller*>(                                                  \
                obtain(this, &lock, make<Controller, I##Controller>,                         \
                       reinterpret_cast<Slot*>(&m##Controller)));                            \
    }
// NOLINTEND(bugprone-macro-parentheses)

//       accessor                    controller             created under
ACCESSOR(getSystemCtrl,              SystemCtrl,            mSystemCtrlLock)
ACCESSOR(getProjectId,               ProjectId,             mProjectIdLock)
ACCESSOR(getEasyTouch,               EasyTouch,             mEasyTouchLock)
ACCESSOR(getPropertiesCtrl,          PropertiesCtrl,        mPropertiesCtrlLock)
ACCESSOR(getSourceCtrl,              SourceCtrl,            mSourceCtrlLock)
ACCESSOR(getDeviceCtrl,              DeviceCtrl,            mDeviceCtrlLock)
ACCESSOR(getDevicePortCtrl,          DevicePortCtrl,        mDevicePortCtrlLock)
ACCESSOR(getNetworkCtrl,             NetworkCtrl,           mNetworkCtrlLock)
ACCESSOR(getBluetoothCtrl,           BluetoothCtrl,         mBluetoothCtrlLock)
ACCESSOR(getAtCfgControl,            AtCfgControl,          mAtCfgControlLock)
ACCESSOR(getKeyboardCtrl,            KeyboardCtrl,          mKeyboardCtrlLock)
ACCESSOR(getAvManagerCtrl,           AvManagerCtrl,         mAvManagerCtrlLock)
ACCESSOR(getFwUpgrade,               FwUpgrade,             mFwUpgradeLock)
ACCESSOR(getRs232Ctrl,               Rs232Ctrl,             mRs232CtrlLock)
ACCESSOR(getRGBLedCtrl,              RGBLedCtrl,            mRGBLedCtrlLock)
ACCESSOR(getAudioCtrl,               AudioCtrl,             mAudioCtrlLock)
ACCESSOR(getTouchCtrl,               TouchCtrl,             mTouchCtrlLock)
ACCESSOR(getTeaDspCtrl,              TeaDspCtrl,            mTeaDspCtrlLock)
ACCESSOR(getAnionCtrl,               AnionCtrl,             mAnionCtrlLock)
ACCESSOR(getBacklightCtrl,           BacklightCtrl,         mBacklightCtrlLock)
ACCESSOR(getVgaAdjust,               VgaAdjust,             mVgaAdjustLock)
ACCESSOR(getCameraCtrl,              CameraCtrl,            mCameraCtrlLock)
ACCESSOR(getSensorBoxCtrl,           SensorBoxCtrl,         mCameraCtrlLock)  // shared
ACCESSOR(getIoBoxCtrl,               IoBoxCtrl,             mCameraCtrlLock)  // shared
ACCESSOR(getTxbCtrl,                 TxbCtrl,               mTxbCtrlLock)
ACCESSOR(getGpioCtrl,                GpioCtrl,              mGpioCtrlLock)
ACCESSOR(getXbugCtrl,                XbugCtrl,              mXbugCtrlLock)
ACCESSOR(getRemoteCtrl,              RemoteCtrl,            mRemoteCtrlLock)
ACCESSOR(getPmsCtrl,                 PmsCtrl,               mPmsCtrlLock)
ACCESSOR(getExtendDisplayCtrl,       ExtendDisplayCtrl,     mExtendDisplayCtrlLock)
ACCESSOR(getPQCtrol,                 PQCtrl,                mPQCtrlLock)  // spelled so
ACCESSOR(getPcModuleCtrl,            PcModuleCtrl,          mPcModuleCtrlLock)
ACCESSOR(getSmartPenModeCtrl,        SmartPenModeCtrl,      mSmartPenModeCtrlLock)
ACCESSOR(getMicrophoneCtrl,          MicrophoneCtrl,        mMicrophoneCtrlLock)
ACCESSOR(getBurnKeyCtrl,             BurnKeyCtrl,           mBurnKeyCtrlLock)
ACCESSOR(getBurnMacCtrl,             BurnMacCtrl,           mBurnMacCtrlLock)
ACCESSOR(getFwTouchCtrl,             FwTouchCtrl,           mFwTouchCtrlLock)
ACCESSOR(getLandscapeCtrl,           LandscapeCtrl,         mLandscapeCtrlLock)
ACCESSOR(getBitmotionCtrl,           BitmotionCtrl,         mBitmotionCtrlLock)
ACCESSOR(getSoundScreenAngleCtrl,    SoundScreenAngleCtrl,  mSoundScreenAngleCtrlLock)
ACCESSOR(getAiNoiseCtrl,             AiNoiseCtrl,           mAiNoiseCtrlLock)
ACCESSOR(getAoipCtrl,                AoipCtrl,              mAoipCtrlLock)
ACCESSOR(getLightEffectCtrl,         LightEffectCtrl,       mLightEffectCtrlLock)
ACCESSOR(getUwbCtrl,                 UwbCtrl,               mUwbCtrlLock)
ACCESSOR(getSuspendCtrl,             SuspendCtrl,           mSuspendCtrlLock)
ACCESSOR(getSerialCtrl,              SerialCtrl,            mCameraCtrlLock)  // shared
ACCESSOR(getDebugCtrl,               DebugCtrl,             mDebugCtrlLock)

#undef ACCESSOR
// clang-format on

}  // namespace android
