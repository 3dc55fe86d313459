#include <tarn/IBacklightCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerBacklightCtrl(std::vector<Controller>* registry) {
    Builder<IBacklightCtrl>(registry, "backlight", "BacklightCtrl", &ITarnManager::getBacklightCtrl)
            .method("getScreenBrightness", Row::CMD_BACKLIGHT_GET_SCREEN_BRIGHTNESS,
                    &IBacklightCtrl::getScreenBrightness)
            .method("setScreenBrightness", Row::CMD_BACKLIGHT_SET_SCREEN_BRIGHTNESS,
                    &IBacklightCtrl::setScreenBrightness, "brightness")
            .method("getScreenMaxBrightness", Row::CMD_BACKLIGHT_GET_SCREEN_MAX_BRIGHTNESS,
                    &IBacklightCtrl::getScreenMaxBrightness)
            .method("setScreenMaxBrightness", Row::CMD_BACKLIGHT_SET_SCREEN_MAX_BRIGHTNESS,
                    &IBacklightCtrl::setScreenMaxBrightness, "brightness")
            .method("getScreenMinBrightness", Row::CMD_BACKLIGHT_GET_SCREEN_MIN_BRIGHTNESS,
                    &IBacklightCtrl::getScreenMinBrightness)
            .method("setScreenMinBrightness", Row::CMD_BACKLIGHT_SET_SCREEN_MIN_BRIGHTNESS,
                    &IBacklightCtrl::setScreenMinBrightness, "brightness")
            .method("getScreenRealBrightness", Row::CMD_BACKLIGHT_GET_SCREEN_REAL_BRIGHTNESS,
                    &IBacklightCtrl::getScreenRealBrightness)
            .method("setScreenRealBrightness", Row::CMD_BACKLIGHT_SET_SCREEN_REAL_BRIGHTNESS,
                    &IBacklightCtrl::setScreenRealBrightness, "brightness")
            .method("getCustomerMinBacklight", Row::CMD_BACKLIGHT_GET_CUSTOMER_MIN_BACKLIGHT,
                    &IBacklightCtrl::getCustomerMinBacklight)
            .method("getCustomerMaxBacklight", Row::CMD_BACKLIGHT_GET_CUSTOMER_MAX_BACKLIGHT,
                    &IBacklightCtrl::getCustomerMaxBacklight)
            .method("getMaxBrightnessSetEnable", Row::CMD_BACKLIGHT_GET_MAX_BRIGHTNESS_SET_ENABLE,
                    &IBacklightCtrl::getMaxBrightnessSetEnable);
}

}  // namespace tarn::registry
