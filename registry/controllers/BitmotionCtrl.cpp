#include <tarn/IBitmotionCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerBitmotionCtrl(std::vector<Controller>* registry) {
    Builder<IBitmotionCtrl> builder(registry, "bitmotion", "BitmotionCtrl",
                                    &ITarnManager::getBitmotionCtrl);
    METHOD(setBrightness, CMD_BITMOTION_SET_BRIGHTNESS);
    METHOD(setDevicePortEnabled, CMD_BITMOTION_SET_DEVICE_PORT_ENABLED);
    METHOD(setWan1Address, CMD_BITMOTION_SET_WAN1_ADDRESS);
    METHOD(setWan2Address, CMD_BITMOTION_SET_WAN2_ADDRESS);
    METHOD(updateFirmware, CMD_BITMOTION_UPDATE_FIRMWARE);
    METHOD(setupWorkMode, CMD_BITMOTION_SETUP_WORK_MODE);
    METHOD(erase, CMD_BITMOTION_ERASE);
    METHOD(getVersion, CMD_BITMOTION_GET_VERSION);
}

}  // namespace tarn::registry
