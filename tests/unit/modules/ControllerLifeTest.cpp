#include <gtest/gtest.h>
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

using namespace android;

namespace {

using Controllers = ::testing::Types<
        AiNoiseCtrl, AnionCtrl, AoipCtrl, AtCfgControl, AudioCtrl, AvManagerCtrl, BacklightCtrl,
        BitmotionCtrl, BluetoothCtrl, BurnKeyCtrl, BurnMacCtrl, CameraCtrl, DebugCtrl, DeviceCtrl,
        DevicePortCtrl, EasyTouch, ExtendDisplayCtrl, FwTouchCtrl, FwUpgrade, GpioCtrl, IoBoxCtrl,
        KeyboardCtrl, LandscapeCtrl, LightEffectCtrl, MicrophoneCtrl, NetworkCtrl, PQCtrl,
        PcModuleCtrl, PmsCtrl, ProjectId, PropertiesCtrl, RGBLedCtrl, RemoteCtrl, Rs232Ctrl,
        SensorBoxCtrl, SerialCtrl, SmartPenModeCtrl, SoundScreenAngleCtrl, SourceCtrl, SuspendCtrl,
        SystemCtrl, TeaDspCtrl, TouchCtrl, TxbCtrl, UwbCtrl, VgaAdjust, XbugCtrl>;

template <typename Controller>
class ControllerLife : public ::testing::Test {};
TYPED_TEST_SUITE(ControllerLife, Controllers);

TYPED_TEST(ControllerLife, HoldsItsManagerAsLongAsItLives) {
    const sp<TarnManager> manager = new TarnManager;
    sp<TypeParam> controller = new TypeParam(manager);
    EXPECT_EQ(manager->getStrongCount(), 2);
    controller.clear();
    EXPECT_EQ(manager->getStrongCount(), 1);
}

}  // namespace
