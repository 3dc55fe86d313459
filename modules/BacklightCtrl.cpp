#include "modules/BacklightCtrl.h"

#include "protocol/Commands.h"

namespace android {

BacklightCtrl::BacklightCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int BacklightCtrl::getScreenBrightness() {
    return mTarnMgr->exeCmdSet_Int(CMD_BACKLIGHT_GET_SCREEN_BRIGHTNESS);
}

int BacklightCtrl::setScreenBrightness(int brightness) {
    return mTarnMgr->exeCmdSet_Int(CMD_BACKLIGHT_SET_SCREEN_BRIGHTNESS, brightness);
}

int BacklightCtrl::getScreenMaxBrightness() {
    return mTarnMgr->exeCmdSet_Int(CMD_BACKLIGHT_GET_SCREEN_MAX_BRIGHTNESS);
}

int BacklightCtrl::setScreenMaxBrightness(int brightness) {
    return mTarnMgr->exeCmdSet_Int(CMD_BACKLIGHT_SET_SCREEN_MAX_BRIGHTNESS, brightness);
}

int BacklightCtrl::getScreenMinBrightness() {
    return mTarnMgr->exeCmdSet_Int(CMD_BACKLIGHT_GET_SCREEN_MIN_BRIGHTNESS);
}

int BacklightCtrl::setScreenMinBrightness(int brightness) {
    return mTarnMgr->exeCmdSet_Int(CMD_BACKLIGHT_SET_SCREEN_MIN_BRIGHTNESS, brightness);
}

int BacklightCtrl::getScreenRealBrightness() {
    return mTarnMgr->exeCmdSet_Int(CMD_BACKLIGHT_GET_SCREEN_REAL_BRIGHTNESS);
}

int BacklightCtrl::setScreenRealBrightness(int brightness) {
    return mTarnMgr->exeCmdSet_Int(CMD_BACKLIGHT_SET_SCREEN_REAL_BRIGHTNESS, brightness);
}

int BacklightCtrl::getCustomerMinBacklight() {
    return mTarnMgr->exeCmdSet_Int(CMD_BACKLIGHT_GET_CUSTOMER_MIN_BACKLIGHT);
}

int BacklightCtrl::getCustomerMaxBacklight() {
    return mTarnMgr->exeCmdSet_Int(CMD_BACKLIGHT_GET_CUSTOMER_MAX_BACKLIGHT);
}

bool BacklightCtrl::getMaxBrightnessSetEnable() {
    return mTarnMgr->exeCmdSet_Bool(CMD_BACKLIGHT_GET_MAX_BRIGHTNESS_SET_ENABLE);
}

}  // namespace android
