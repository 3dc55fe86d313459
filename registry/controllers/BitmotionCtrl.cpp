#include <tarn/IBitmotionCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerBitmotionCtrl(std::vector<Controller>* registry) {
    Builder<IBitmotionCtrl>(registry, "bitmotion", "BitmotionCtrl", &ITarnManager::getBitmotionCtrl)
            .method("setBrightness", Row::CMD_BITMOTION_SET_BRIGHTNESS,
                    &IBitmotionCtrl::setBrightness, "brightness")
            .method("setDevicePortEnabled", Row::CMD_BITMOTION_SET_DEVICE_PORT_ENABLED,
                    &IBitmotionCtrl::setDevicePortEnabled, "port, enabled")
            .method("setWan1Address", Row::CMD_BITMOTION_SET_WAN1_ADDRESS,
                    &IBitmotionCtrl::setWan1Address, "address")
            .method("setWan2Address", Row::CMD_BITMOTION_SET_WAN2_ADDRESS,
                    &IBitmotionCtrl::setWan2Address, "address")
            .method("updateFirmware", Row::CMD_BITMOTION_UPDATE_FIRMWARE,
                    &IBitmotionCtrl::updateFirmware, "path")
            .method("setupWorkMode", Row::CMD_BITMOTION_SETUP_WORK_MODE,
                    &IBitmotionCtrl::setupWorkMode, "mode")
            .method("erase", Row::CMD_BITMOTION_ERASE, &IBitmotionCtrl::erase, "what")
            .method("getVersion", Row::CMD_BITMOTION_GET_VERSION, &IBitmotionCtrl::getVersion);
}

}  // namespace tarn::registry
