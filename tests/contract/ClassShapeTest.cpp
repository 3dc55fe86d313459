#include <gtest/gtest.h>
#include <tarn/ITarnManager.h>
#include <tarn/TarnManager.h>
#include <utils/RefBase.h>

#include <type_traits>
#include <utility>

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

using namespace android;

namespace {

// Whether a base is a virtual one is part of a class's binary shape. The checks are the compiler's:
// the language has no static_cast down from a virtual base.

template <typename Derived, typename Base, typename = void>
constexpr bool derivesPlainly = false;

template <typename Derived, typename Base>
constexpr bool derivesPlainly<Derived, Base,
                              std::void_t<decltype(static_cast<Derived*>(std::declval<Base*>()))>> =
        true;

template <typename Derived, typename Base>
constexpr bool derivesVirtually =
        std::is_base_of_v<Base, Derived> && !derivesPlainly<Derived, Base>;

TEST(Controllers, DeriveVirtuallyFromSomeInterfaces) {
    static_assert(derivesVirtually<EasyTouch, IEasyTouch>);
    static_assert(derivesVirtually<KeyboardCtrl, IKeyboardCtrl>);
    static_assert(derivesVirtually<Rs232Ctrl, IRs232Ctrl>);
    static_assert(derivesVirtually<CameraCtrl, ICameraCtrl>);
    static_assert(derivesVirtually<SensorBoxCtrl, ISensorBoxCtrl>);
    static_assert(derivesVirtually<IoBoxCtrl, IIoBoxCtrl>);
    static_assert(derivesVirtually<TxbCtrl, ITxbCtrl>);
    static_assert(derivesVirtually<RemoteCtrl, IRemoteCtrl>);
    static_assert(derivesVirtually<PcModuleCtrl, IPcModuleCtrl>);
    static_assert(derivesVirtually<SmartPenModeCtrl, ISmartPenModeCtrl>);
    static_assert(derivesVirtually<FwTouchCtrl, IFwTouchCtrl>);
    static_assert(derivesVirtually<LandscapeCtrl, ILandscapeCtrl>);
    static_assert(derivesVirtually<BitmotionCtrl, IBitmotionCtrl>);
    static_assert(derivesVirtually<SerialCtrl, ISerialCtrl>);
}

TEST(Controllers, DerivePlainlyFromTheOthers) {
    static_assert(derivesPlainly<SystemCtrl, ISystemCtrl>);
    static_assert(derivesPlainly<ProjectId, IProjectId>);
    static_assert(derivesPlainly<PropertiesCtrl, IPropertiesCtrl>);
    static_assert(derivesPlainly<SourceCtrl, ISourceCtrl>);
    static_assert(derivesPlainly<DeviceCtrl, IDeviceCtrl>);
    static_assert(derivesPlainly<DevicePortCtrl, IDevicePortCtrl>);
    static_assert(derivesPlainly<NetworkCtrl, INetworkCtrl>);
    static_assert(derivesPlainly<BluetoothCtrl, IBluetoothCtrl>);
    static_assert(derivesPlainly<AtCfgControl, IAtCfgControl>);
    static_assert(derivesPlainly<AvManagerCtrl, IAvManagerCtrl>);
    static_assert(derivesPlainly<FwUpgrade, IFwUpgrade>);
    static_assert(derivesPlainly<RGBLedCtrl, IRGBLedCtrl>);
    static_assert(derivesPlainly<AudioCtrl, IAudioCtrl>);
    static_assert(derivesPlainly<TouchCtrl, ITouchCtrl>);
    static_assert(derivesPlainly<TeaDspCtrl, ITeaDspCtrl>);
    static_assert(derivesPlainly<AnionCtrl, IAnionCtrl>);
    static_assert(derivesPlainly<BacklightCtrl, IBacklightCtrl>);
    static_assert(derivesPlainly<VgaAdjust, IVgaAdjust>);
    static_assert(derivesPlainly<GpioCtrl, IGpioCtrl>);
    static_assert(derivesPlainly<XbugCtrl, IXbugCtrl>);
    static_assert(derivesPlainly<PmsCtrl, IPmsCtrl>);
    static_assert(derivesPlainly<ExtendDisplayCtrl, IExtendDisplayCtrl>);
    static_assert(derivesPlainly<PQCtrl, IPQCtrl>);
    static_assert(derivesPlainly<MicrophoneCtrl, IMicrophoneCtrl>);
    static_assert(derivesPlainly<BurnKeyCtrl, IBurnKeyCtrl>);
    static_assert(derivesPlainly<BurnMacCtrl, IBurnMacCtrl>);
    static_assert(derivesPlainly<SoundScreenAngleCtrl, ISoundScreenAngleCtrl>);
    static_assert(derivesPlainly<AiNoiseCtrl, IAiNoiseCtrl>);
    static_assert(derivesPlainly<AoipCtrl, IAoipCtrl>);
    static_assert(derivesPlainly<LightEffectCtrl, ILightEffectCtrl>);
    static_assert(derivesPlainly<UwbCtrl, IUwbCtrl>);
    static_assert(derivesPlainly<SuspendCtrl, ISuspendCtrl>);
    static_assert(derivesPlainly<DebugCtrl, IDebugCtrl>);
}

TEST(Interfaces, DeriveVirtuallyFromTheReferenceCount) {
    static_assert(derivesVirtually<ITarnManager, RefBase>);
    static_assert(derivesVirtually<ISystemCtrl, RefBase>);
    static_assert(derivesVirtually<IProjectId, RefBase>);
    static_assert(derivesVirtually<IEasyTouch, RefBase>);
    static_assert(derivesVirtually<IPropertiesCtrl, RefBase>);
    static_assert(derivesVirtually<ISourceCtrl, RefBase>);
    static_assert(derivesVirtually<IDeviceCtrl, RefBase>);
    static_assert(derivesVirtually<IDevicePortCtrl, RefBase>);
    static_assert(derivesVirtually<INetworkCtrl, RefBase>);
    static_assert(derivesVirtually<IBluetoothCtrl, RefBase>);
    static_assert(derivesVirtually<IAtCfgControl, RefBase>);
    static_assert(derivesVirtually<IKeyboardCtrl, RefBase>);
    static_assert(derivesVirtually<IAvManagerCtrl, RefBase>);
    static_assert(derivesVirtually<IFwUpgrade, RefBase>);
    static_assert(derivesVirtually<IRs232Ctrl, RefBase>);
    static_assert(derivesVirtually<IRGBLedCtrl, RefBase>);
    static_assert(derivesVirtually<IAudioCtrl, RefBase>);
    static_assert(derivesVirtually<ITouchCtrl, RefBase>);
    static_assert(derivesVirtually<ITeaDspCtrl, RefBase>);
    static_assert(derivesVirtually<IAnionCtrl, RefBase>);
    static_assert(derivesVirtually<IBacklightCtrl, RefBase>);
    static_assert(derivesVirtually<IVgaAdjust, RefBase>);
    static_assert(derivesVirtually<ICameraCtrl, RefBase>);
    static_assert(derivesVirtually<ISensorBoxCtrl, RefBase>);
    static_assert(derivesVirtually<IIoBoxCtrl, RefBase>);
    static_assert(derivesVirtually<ITxbCtrl, RefBase>);
    static_assert(derivesVirtually<IGpioCtrl, RefBase>);
    static_assert(derivesVirtually<IXbugCtrl, RefBase>);
    static_assert(derivesVirtually<IRemoteCtrl, RefBase>);
    static_assert(derivesVirtually<IPmsCtrl, RefBase>);
    static_assert(derivesVirtually<IExtendDisplayCtrl, RefBase>);
    static_assert(derivesVirtually<IPQCtrl, RefBase>);
    static_assert(derivesVirtually<IPcModuleCtrl, RefBase>);
    static_assert(derivesVirtually<ISmartPenModeCtrl, RefBase>);
    static_assert(derivesVirtually<IMicrophoneCtrl, RefBase>);
    static_assert(derivesVirtually<IBurnKeyCtrl, RefBase>);
    static_assert(derivesVirtually<IBurnMacCtrl, RefBase>);
    static_assert(derivesVirtually<IFwTouchCtrl, RefBase>);
    static_assert(derivesVirtually<ILandscapeCtrl, RefBase>);
    static_assert(derivesVirtually<IBitmotionCtrl, RefBase>);
    static_assert(derivesVirtually<ISoundScreenAngleCtrl, RefBase>);
    static_assert(derivesVirtually<IAiNoiseCtrl, RefBase>);
    static_assert(derivesVirtually<IAoipCtrl, RefBase>);
    static_assert(derivesVirtually<ILightEffectCtrl, RefBase>);
    static_assert(derivesVirtually<IUwbCtrl, RefBase>);
    static_assert(derivesVirtually<ISuspendCtrl, RefBase>);
    static_assert(derivesVirtually<ISerialCtrl, RefBase>);
    static_assert(derivesVirtually<IDebugCtrl, RefBase>);
}

TEST(TarnManager, DerivesVirtuallyFromItsInterface) {
    static_assert(derivesVirtually<TarnManager, ITarnManager>);
}

}  // namespace
