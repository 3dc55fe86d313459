#include <tarn/IBacklightCtrl.h>

#include "protocol/Commands.h"
#include "registry/Builder.h"

using namespace android;

namespace tarnctl {

void registerBacklightCtrl(std::vector<Controller>* registry) {
    Builder<IBacklightCtrl>(registry, "backlight", "BacklightCtrl", &ITarnManager::getBacklightCtrl)
            .method("getScreenBrightness", CMD_BACKLIGHT_GET_SCREEN_BRIGHTNESS,
                    &IBacklightCtrl::getScreenBrightness)
            .method("setScreenBrightness", CMD_BACKLIGHT_SET_SCREEN_BRIGHTNESS,
                    &IBacklightCtrl::setScreenBrightness, "brightness")
            .method("getScreenMaxBrightness", CMD_BACKLIGHT_GET_SCREEN_MAX_BRIGHTNESS,
                    &IBacklightCtrl::getScreenMaxBrightness)
            .method("setScreenMaxBrightness", CMD_BACKLIGHT_SET_SCREEN_MAX_BRIGHTNESS,
                    &IBacklightCtrl::setScreenMaxBrightness, "brightness")
            .method("getScreenMinBrightness", CMD_BACKLIGHT_GET_SCREEN_MIN_BRIGHTNESS,
                    &IBacklightCtrl::getScreenMinBrightness)
            .method("setScreenMinBrightness", CMD_BACKLIGHT_SET_SCREEN_MIN_BRIGHTNESS,
                    &IBacklightCtrl::setScreenMinBrightness, "brightness")
            .method("getScreenRealBrightness", CMD_BACKLIGHT_GET_SCREEN_REAL_BRIGHTNESS,
                    &IBacklightCtrl::getScreenRealBrightness)
            .method("setScreenRealBrightness", CMD_BACKLIGHT_SET_SCREEN_REAL_BRIGHTNESS,
                    &IBacklightCtrl::setScreenRealBrightness, "brightness")
            .method("getCustomerMinBacklight", CMD_BACKLIGHT_GET_CUSTOMER_MIN_BACKLIGHT,
                    &IBacklightCtrl::getCustomerMinBacklight)
            .method("getCustomerMaxBacklight", CMD_BACKLIGHT_GET_CUSTOMER_MAX_BACKLIGHT,
                    &IBacklightCtrl::getCustomerMaxBacklight)
            .method("getMaxBrightnessSetEnable", CMD_BACKLIGHT_GET_MAX_BRIGHTNESS_SET_ENABLE,
                    &IBacklightCtrl::getMaxBrightnessSetEnable);
}

}  // namespace tarnctl
