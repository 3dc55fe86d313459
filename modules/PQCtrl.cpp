#include "modules/PQCtrl.h"

#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@PQCtrl"
#include "log/Log.h"

namespace android {

namespace {

constexpr int kDefaultEyePQModeIndex = 3;

}  // namespace

PQCtrl::PQCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

bool PQCtrl::getDCREnable() {
    return mTarnMgr->exeCmdSet_Bool(CMD_PQ_GET_DCR_ENABLE);
}

int PQCtrl::getDcrMaxBacklight() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_DCR_MAX_BACKLIGHT);
}

int PQCtrl::getDcrMinBacklight() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_DCR_MIN_BACKLIGHT);
}

int PQCtrl::getDcrStepTime() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_DCR_STEP_TIME);
}

int PQCtrl::getDcrStepValue() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_DCR_STEP_VALUE);
}

bool PQCtrl::setDCREnable(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_PQ_SET_DCR_ENABLE, on);
}

int PQCtrl::setDcrMaxBacklight(int level) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_DCR_MAX_BACKLIGHT, level);
}

int PQCtrl::setDcrMinBacklight(int level) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_DCR_MIN_BACKLIGHT, level);
}

int PQCtrl::setDcrStepTime(int time) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_DCR_STEP_TIME, time);
}

int PQCtrl::setDcrStepValue(int value) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_DCR_STEP_VALUE, value);
}

bool PQCtrl::getDBCEnable() {
    return mTarnMgr->exeCmdSet_Bool(CMD_PQ_GET_DBC_ENABLE);
}

bool PQCtrl::setDBCEnable(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_PQ_SET_DBC_ENABLE, on);
}

int PQCtrl::getPQRGain() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_R_GAIN);
}

int PQCtrl::setPQRGain(int gain) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_R_GAIN, gain);
}

int PQCtrl::getPQGGain() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_G_GAIN);
}

int PQCtrl::setPQGGain(int gain) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_G_GAIN, gain);
}

int PQCtrl::getPQBGain() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_B_GAIN);
}

int PQCtrl::setPQBGain(int gain) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_B_GAIN, gain);
}

int PQCtrl::getColorTemp() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_COLOR_TEMP);
}

int PQCtrl::setColorTemp(int colorTemp) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_COLOR_TEMP, colorTemp);
}

int PQCtrl::getSaturation() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_SATURATION);
}

int PQCtrl::setSaturation(int saturation) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_SATURATION, saturation);
}

int PQCtrl::getSharpness() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_SHARPNESS);
}

int PQCtrl::setSharpness(int sharpness) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_SHARPNESS, sharpness);
}

int PQCtrl::getContrast() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_CONTRAST);
}

int PQCtrl::setContrast(int contrast) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_CONTRAST, contrast);
}

int PQCtrl::getHue() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_HUE);
}

int PQCtrl::setHue(int hue) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_HUE, hue);
}

int PQCtrl::getPictureMode() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_PICTURE_MODE);
}

int PQCtrl::setPictureMode(int mode) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_PICTURE_MODE, mode);
}

int PQCtrl::getGammaMode() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_GAMMA_MODE);
}

int PQCtrl::setGammaMode(int mode) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_GAMMA_MODE, mode);
}

int PQCtrl::getBrightness() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_BRIGHTNESS);
}

int PQCtrl::setBrightness(int brightness) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_BRIGHTNESS, brightness);
}

int PQCtrl::getPQRGainWithoutSave() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_R_GAIN_WITHOUT_SAVE);
}

int PQCtrl::setPQRGainWithoutSave(int gain) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_R_GAIN_WITHOUT_SAVE, gain);
}

int PQCtrl::getPQGGainWithoutSave() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_G_GAIN_WITHOUT_SAVE);
}

int PQCtrl::setPQGGainWithoutSave(int gain) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_G_GAIN_WITHOUT_SAVE, gain);
}

int PQCtrl::getPQBGainWithoutSave() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_B_GAIN_WITHOUT_SAVE);
}

int PQCtrl::setPQBGainWithoutSave(int gain) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_B_GAIN_WITHOUT_SAVE, gain);
}

int PQCtrl::setPresetColorTempMode(int a, int b, int c, int d, int e) {
    Parcel request;
    for (const int value : {a, b, c, d, e}) request.writeInt32(value);
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_PRESET_COLOR_TEMP_MODE, request);
}

PresetColorTempValues PQCtrl::getPresetColorTempMode(int a, int b) {
    Parcel request;
    request.writeInt32(a);
    request.writeInt32(b);
    // A failed command leaves the reply empty, and an empty reply reads as zeros.
    Parcel reply;
    mTarnMgr->exeCmdSet_Parcel(CMD_PQ_GET_PRESET_COLOR_TEMP_MODE, request, &reply);
    const int32_t leading = reply.readInt32();
    PresetColorTempValues values;
    values.first = reply.readInt32();
    values.second = reply.readInt32();
    values.third = reply.readInt32();
    TLOGE("%s %d %d %d %d\n", __func__, leading, values.first, values.second, values.third);
    return values;
}

int PQCtrl::resetWhiteBalance() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_RESET_WHITE_BALANCE);
}

int PQCtrl::getEyePQModeIndexToSave() {
    TLOGW("%s begin", __func__);
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_PQ_GET_EYE_PQ_MODE_INDEX_TO_SAVE, &reply) != 0) {
        return kDefaultEyePQModeIndex;
    }
    TLOGW("%s cmd ok", __func__);
    return reply.readInt32();
}

bool PQCtrl::getVideoDisplayZoneTilingEnable() {
    return mTarnMgr->exeCmdSet_Bool(CMD_PQ_GET_VIDEO_DISPLAY_ZONE_TILING_ENABLE);
}

bool PQCtrl::setVideoDisplayZoneTilingEnable(int enabled) {
    return mTarnMgr->exeCmdSet_Bool(CMD_PQ_SET_VIDEO_DISPLAY_ZONE_TILING_ENABLE, enabled);
}

bool PQCtrl::getVideoDisplayZoneCompEnable() {
    return mTarnMgr->exeCmdSet_Bool(CMD_PQ_GET_VIDEO_DISPLAY_ZONE_COMP_ENABLE);
}

bool PQCtrl::setVideoDisplayZoneCompEnable(int enabled) {
    return mTarnMgr->exeCmdSet_Bool(CMD_PQ_SET_VIDEO_DISPLAY_ZONE_COMP_ENABLE, enabled);
}

int PQCtrl::getHDCPVersion(_TarnEnumInputSourceId_ source) {
    // Kept as it is, unlike setHDCPVersion(): the source is not sent and the answer is not used.
    mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_HDCP_VERSION);
    return source;
}

bool PQCtrl::setHDCPVersion(_TarnEnumInputSourceId_ source, _EnumHdcpVersion version) {
    return mTarnMgr->exeCmdSet_Bool(CMD_PQ_SET_HDCP_VERSION, source, version);
}

int PQCtrl::getAspectMode() {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_GET_ASPECT_MODE);
}

bool PQCtrl::setAspectMode(_EnumAspect_ mode) {
    return mTarnMgr->exeCmdSet_Int(CMD_PQ_SET_ASPECT_MODE, mode) != 0;
}

}  // namespace android
