#include <tarn/IBacklightCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerBacklightCtrl(std::vector<Controller>* registry) {
    Builder<IBacklightCtrl> builder(registry, "backlight", "BacklightCtrl",
                                    &ITarnManager::getBacklightCtrl);
    METHOD(getScreenBrightness, CMD_BACKLIGHT_GET_SCREEN_BRIGHTNESS);
    METHOD(setScreenBrightness, CMD_BACKLIGHT_SET_SCREEN_BRIGHTNESS);
    METHOD(getScreenMaxBrightness, CMD_BACKLIGHT_GET_SCREEN_MAX_BRIGHTNESS);
    METHOD(setScreenMaxBrightness, CMD_BACKLIGHT_SET_SCREEN_MAX_BRIGHTNESS);
    METHOD(getScreenMinBrightness, CMD_BACKLIGHT_GET_SCREEN_MIN_BRIGHTNESS);
    METHOD(setScreenMinBrightness, CMD_BACKLIGHT_SET_SCREEN_MIN_BRIGHTNESS);
    METHOD(getScreenRealBrightness, CMD_BACKLIGHT_GET_SCREEN_REAL_BRIGHTNESS);
    METHOD(setScreenRealBrightness, CMD_BACKLIGHT_SET_SCREEN_REAL_BRIGHTNESS);
    METHOD(getCustomerMinBacklight, CMD_BACKLIGHT_GET_CUSTOMER_MIN_BACKLIGHT);
    METHOD(getCustomerMaxBacklight, CMD_BACKLIGHT_GET_CUSTOMER_MAX_BACKLIGHT);
    METHOD(getMaxBrightnessSetEnable, CMD_BACKLIGHT_GET_MAX_BRIGHTNESS_SET_ENABLE);
}

}  // namespace tarn::registry
