#include <gtest/gtest.h>
#include <tarn/ITarnListener.h>
#include <tarn/ITarnManager.h>
#include <tarn/ITarnPlatform.h>
#include <tarn/ITarnService.h>
#include <tarn/TarnClient.h>
#include <tarn/TarnManager.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <map>
#include <string>
#include <vector>

#include "core/HwTarnClient.h"
#include "core/ITarnLooper.h"
#include "registry/Registry.h"
#include "registry/Slot.h"

using android::HwTarnClient;
using android::IHwTarnClient;
using android::ITarnClient;
using android::ITarnClientCallback;
using android::ITarnClientLooper;
using android::ITarnManager;
using android::ITarnPlatform;
using android::ITarnService;
using android::TarnManager;
using tarn::registry::Controller;
using tarn::registry::slotOf;
using vendor::zunt::hwtarn::V1_0::IHwTarn;
using vendor::zunt::hwtarn::V1_0::IHwTarnCallback;

namespace {

// A destructor takes two slots of a virtual table.
constexpr size_t kDestructor = 2;

constexpr const char* kControllers[] = {
        "SystemCtrl",       "ProjectId",         "EasyTouch",       "PropertiesCtrl",
        "SourceCtrl",       "DeviceCtrl",        "DevicePortCtrl",  "NetworkCtrl",
        "BluetoothCtrl",    "AtCfgControl",      "KeyboardCtrl",    "AvManagerCtrl",
        "FwUpgrade",        "Rs232Ctrl",         "RGBLedCtrl",      "AudioCtrl",
        "TouchCtrl",        "TeaDspCtrl",        "AnionCtrl",       "BacklightCtrl",
        "VgaAdjust",        "CameraCtrl",        "SensorBoxCtrl",   "IoBoxCtrl",
        "TxbCtrl",          "GpioCtrl",          "XbugCtrl",        "RemoteCtrl",
        "PmsCtrl",          "ExtendDisplayCtrl", "PQCtrl",          "PcModuleCtrl",
        "SmartPenModeCtrl", "MicrophoneCtrl",    "BurnKeyCtrl",     "BurnMacCtrl",
        "FwTouchCtrl",      "LandscapeCtrl",     "BitmotionCtrl",   "SoundScreenAngleCtrl",
        "AiNoiseCtrl",      "AoipCtrl",          "LightEffectCtrl", "UwbCtrl",
        "SuspendCtrl",      "SerialCtrl",        "DebugCtrl",
};

/** The slot that the method of that index has in its interface's table. */
size_t expectedSlot(const std::string& controller, size_t index) {
    if (controller == "BitmotionCtrl") return kDestructor + index;
    // The two PIR methods follow the destructor.
    if (controller == "SystemCtrl" && index >= 74) return kDestructor + index;
    return index;
}

TEST(Registry, HasEveryControllerInTheOrderOfTheAccessors) {
    const std::vector<Controller>& controllers = tarn::registry::controllers();
    ASSERT_EQ(controllers.size(), std::size(kControllers));
    for (size_t i = 0; i < controllers.size(); i++) {
        EXPECT_EQ(controllers[i].className, kControllers[i]);
    }
}

// Which methods there are, in this order, is what the frozen bytes tell: wire_test.
TEST(Registry, HasEveryMethodInItsSlot) {
    for (const Controller& controller : tarn::registry::controllers()) {
        for (size_t i = 0; i < controller.methods.size(); i++) {
            EXPECT_EQ(controller.methods[i].slot, expectedSlot(controller.className, i))
                    << controller.className << "::" << controller.methods[i].name;
        }
    }
}

TEST(ITarnManager, HasItsOperationsInSlotOrder) {
    const size_t slots[] = {
            slotOf(&ITarnManager::invoke),
            slotOf(&ITarnManager::getSystemCtrl),
            slotOf(&ITarnManager::getProjectId),
            slotOf(&ITarnManager::getEasyTouch),
            slotOf(&ITarnManager::getPropertiesCtrl),
            slotOf(&ITarnManager::getSourceCtrl),
            slotOf(&ITarnManager::getDeviceCtrl),
            slotOf(&ITarnManager::getDevicePortCtrl),
            slotOf(&ITarnManager::getNetworkCtrl),
            slotOf(&ITarnManager::getBluetoothCtrl),
            slotOf(&ITarnManager::getAtCfgControl),
            slotOf(&ITarnManager::getKeyboardCtrl),
            slotOf(&ITarnManager::getAvManagerCtrl),
            slotOf(&ITarnManager::getFwUpgrade),
            slotOf(&ITarnManager::getRs232Ctrl),
            slotOf(&ITarnManager::getRGBLedCtrl),
            slotOf(&ITarnManager::getAudioCtrl),
            slotOf(&ITarnManager::getTouchCtrl),
            slotOf(&ITarnManager::getTeaDspCtrl),
            slotOf(&ITarnManager::getAnionCtrl),
            slotOf(&ITarnManager::getBacklightCtrl),
            slotOf(&ITarnManager::getVgaAdjust),
            slotOf(&ITarnManager::getCameraCtrl),
            slotOf(&ITarnManager::getSensorBoxCtrl),
            slotOf(&ITarnManager::getIoBoxCtrl),
            slotOf(&ITarnManager::getTxbCtrl),
            slotOf(&ITarnManager::getGpioCtrl),
            slotOf(&ITarnManager::getXbugCtrl),
            slotOf(&ITarnManager::getRemoteCtrl),
            slotOf(&ITarnManager::getPmsCtrl),
            slotOf(&ITarnManager::getExtendDisplayCtrl),
            slotOf(&ITarnManager::getPQCtrol),
            slotOf(&ITarnManager::getPcModuleCtrl),
            slotOf(&ITarnManager::getSmartPenModeCtrl),
            slotOf(&ITarnManager::getMicrophoneCtrl),
            slotOf(&ITarnManager::getBurnKeyCtrl),
            slotOf(&ITarnManager::getBurnMacCtrl),
            slotOf(&ITarnManager::getFwTouchCtrl),
            slotOf(&ITarnManager::getLandscapeCtrl),
            slotOf(&ITarnManager::getBitmotionCtrl),
            slotOf(&ITarnManager::getSoundScreenAngleCtrl),
            slotOf(&ITarnManager::getAiNoiseCtrl),
            slotOf(&ITarnManager::getAoipCtrl),
            slotOf(&ITarnManager::getLightEffectCtrl),
            slotOf(&ITarnManager::getUwbCtrl),
            slotOf(&ITarnManager::getSuspendCtrl),
            slotOf(&ITarnManager::getSerialCtrl),
            slotOf(&ITarnManager::getDebugCtrl),
            slotOf(&ITarnManager::postEvent),
            slotOf(&ITarnManager::registerListener),
            slotOf(&ITarnManager::unRegisterListener),
            slotOf(&ITarnManager::isTarnReady),
            slotOf(&ITarnManager::createTarnMsgManager),
            slotOf(&ITarnManager::removeTarnMsgManager),
    };
    ASSERT_EQ(std::size(slots), 54u);
    for (size_t i = 0; i < std::size(slots); i++) EXPECT_EQ(slots[i], i);
}

TEST(IHwTarnClient, HasItsOperationsInSlotOrder) {
    EXPECT_EQ(slotOf(&IHwTarnClient::hw_invoke), 0u);
    EXPECT_EQ(slotOf(&IHwTarnClient::postEvent), 1u);
    EXPECT_EQ(slotOf(&IHwTarnClient::isTarnReady), 2u);
    EXPECT_EQ(slotOf(&IHwTarnClient::createTarnMsgManager), 3u);
    EXPECT_EQ(slotOf(&IHwTarnClient::removeTarnMsgManager), 4u);
    EXPECT_EQ(slotOf(&IHwTarnClient::registerListener), 5u);
    EXPECT_EQ(slotOf(&IHwTarnClient::unRegisterListener), 6u);
}

TEST(HwTarnClient, HasHandleMsgThenTheDestructorsThenTheOperations) {
    EXPECT_EQ(slotOf(&HwTarnClient::handleMsg), 0u);
    const size_t first = 1 + kDestructor;
    EXPECT_EQ(slotOf(&HwTarnClient::hw_invoke), first);
    EXPECT_EQ(slotOf(&HwTarnClient::postEvent), first + 1);
    EXPECT_EQ(slotOf(&HwTarnClient::isTarnReady), first + 2);
    EXPECT_EQ(slotOf(&HwTarnClient::createTarnMsgManager), first + 3);
    EXPECT_EQ(slotOf(&HwTarnClient::removeTarnMsgManager), first + 4);
    EXPECT_EQ(slotOf(&HwTarnClient::registerListener), first + 5);
    EXPECT_EQ(slotOf(&HwTarnClient::unRegisterListener), first + 6);
}

TEST(ITarnLooper, IsCalledThroughItsFirstSlot) {
    EXPECT_EQ(slotOf(&ITarnLooper::handleMsg), 0u);
}

TEST(TarnManager, HasInvokeInItsFirstSlot) {
    EXPECT_EQ(slotOf(&TarnManager::invoke), 0u);
}

TEST(ITarnClientLooper, HasItsOperationsInSlotOrder) {
    EXPECT_EQ(slotOf(&ITarnClientLooper::createTarnMsgLooper), 0u);
    EXPECT_EQ(slotOf(&ITarnClientLooper::removeTarnMsgLooper), 1u);
    EXPECT_EQ(slotOf(&ITarnClientLooper::sendMsg), 2u);
    EXPECT_EQ(slotOf(&ITarnClientLooper::postMsg), 3u);
}

TEST(ITarnListener, IsCalledThroughItsFirstSlot) {
    EXPECT_EQ(slotOf(&ITarnListener::notify), 0u);
}

TEST(ITarnClientCallback, IsCalledThroughItsFirstSlot) {
    EXPECT_EQ(slotOf(&ITarnClientCallback::notify), 0u);
}

TEST(ITarnService, HasItsOperationsBehindItsDescriptor) {
    const size_t descriptor = slotOf(&ITarnService::getInterfaceDescriptor);
    EXPECT_EQ(slotOf(&ITarnService::connect), descriptor + 1);
    EXPECT_EQ(slotOf(&ITarnService::invoke), descriptor + 2);
}

TEST(ITarnClient, HasItsOperationBehindItsDescriptor) {
    EXPECT_EQ(slotOf(&ITarnClient::notify), slotOf(&ITarnClient::getInterfaceDescriptor) + 1);
}

TEST(IHwTarn, HasTheThreeMethodsInUseInTheirPlaces) {
    const size_t first = slotOf(&IHwTarn::hwReserved1);
    EXPECT_EQ(slotOf(&IHwTarn::hwRegisterCallback), first + 1);
    EXPECT_EQ(slotOf(&IHwTarn::hwInvoke), first + 2);
    EXPECT_EQ(slotOf(&IHwTarn::hwReserved4), first + 3);
    EXPECT_EQ(slotOf(&IHwTarn::hwPostEvent), first + 4);
}

TEST(IHwTarnCallback, HasTextsBeforeBytes) {
    EXPECT_EQ(slotOf(&IHwTarnCallback::hwNotify_vec), slotOf(&IHwTarnCallback::hwNotify) + 1);
}

TEST(ITarnPlatform, HasItsOperationsInSlotOrder) {
    EXPECT_EQ(slotOf(&ITarnPlatform::initTv), 0u);
    EXPECT_EQ(slotOf(&ITarnPlatform::exitTv), 1u);
    EXPECT_EQ(slotOf(&ITarnPlatform::notify), 2u);
}

}  // namespace
