#include <tarn/IPQCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<PresetColorTempValues> : RecordResult {
    static constexpr const char* kWords = "preset";
    static Answer answer(const PresetColorTempValues& values) {
        return record()
                .field("first", values.first)
                .field("second", values.second)
                .field("third", values.third);
    }
};

void registerPQCtrl(std::vector<Controller>* registry) {
    Builder<IPQCtrl> builder(registry, "pq", "PQCtrl", &ITarnManager::getPQCtrol);
    METHOD(getDCREnable, CMD_PQ_GET_DCR_ENABLE);
    METHOD(getDcrMaxBacklight, CMD_PQ_GET_DCR_MAX_BACKLIGHT);
    METHOD(getDcrMinBacklight, CMD_PQ_GET_DCR_MIN_BACKLIGHT);
    METHOD(getDcrStepTime, CMD_PQ_GET_DCR_STEP_TIME);
    METHOD(getDcrStepValue, CMD_PQ_GET_DCR_STEP_VALUE);
    METHOD(setDCREnable, CMD_PQ_SET_DCR_ENABLE);
    METHOD(setDcrMaxBacklight, CMD_PQ_SET_DCR_MAX_BACKLIGHT);
    METHOD(setDcrMinBacklight, CMD_PQ_SET_DCR_MIN_BACKLIGHT);
    METHOD(setDcrStepTime, CMD_PQ_SET_DCR_STEP_TIME);
    METHOD(setDcrStepValue, CMD_PQ_SET_DCR_STEP_VALUE);
    METHOD(getDBCEnable, CMD_PQ_GET_DBC_ENABLE);
    METHOD(setDBCEnable, CMD_PQ_SET_DBC_ENABLE);
    METHOD(getPQRGain, CMD_PQ_GET_R_GAIN);
    METHOD(setPQRGain, CMD_PQ_SET_R_GAIN);
    METHOD(getPQGGain, CMD_PQ_GET_G_GAIN);
    METHOD(setPQGGain, CMD_PQ_SET_G_GAIN);
    METHOD(getPQBGain, CMD_PQ_GET_B_GAIN);
    METHOD(setPQBGain, CMD_PQ_SET_B_GAIN);
    METHOD(getColorTemp, CMD_PQ_GET_COLOR_TEMP);
    METHOD(setColorTemp, CMD_PQ_SET_COLOR_TEMP);
    METHOD(getSaturation, CMD_PQ_GET_SATURATION);
    METHOD(setSaturation, CMD_PQ_SET_SATURATION);
    METHOD(getSharpness, CMD_PQ_GET_SHARPNESS);
    METHOD(setSharpness, CMD_PQ_SET_SHARPNESS);
    METHOD(getContrast, CMD_PQ_GET_CONTRAST);
    METHOD(setContrast, CMD_PQ_SET_CONTRAST);
    METHOD(getHue, CMD_PQ_GET_HUE);
    METHOD(setHue, CMD_PQ_SET_HUE);
    METHOD(getPictureMode, CMD_PQ_GET_PICTURE_MODE);
    METHOD(setPictureMode, CMD_PQ_SET_PICTURE_MODE);
    METHOD(getGammaMode, CMD_PQ_GET_GAMMA_MODE);
    METHOD(setGammaMode, CMD_PQ_SET_GAMMA_MODE);
    METHOD(getBrightness, CMD_PQ_GET_BRIGHTNESS);
    METHOD(setBrightness, CMD_PQ_SET_BRIGHTNESS);
    METHOD(getPQRGainWithoutSave, CMD_PQ_GET_R_GAIN_WITHOUT_SAVE);
    METHOD(setPQRGainWithoutSave, CMD_PQ_SET_R_GAIN_WITHOUT_SAVE);
    METHOD(getPQGGainWithoutSave, CMD_PQ_GET_G_GAIN_WITHOUT_SAVE);
    METHOD(setPQGGainWithoutSave, CMD_PQ_SET_G_GAIN_WITHOUT_SAVE);
    METHOD(getPQBGainWithoutSave, CMD_PQ_GET_B_GAIN_WITHOUT_SAVE);
    METHOD(setPQBGainWithoutSave, CMD_PQ_SET_B_GAIN_WITHOUT_SAVE);
    METHOD(setPresetColorTempMode, CMD_PQ_SET_PRESET_COLOR_TEMP_MODE);
    METHOD(getPresetColorTempMode, CMD_PQ_GET_PRESET_COLOR_TEMP_MODE);
    METHOD(resetWhiteBalance, CMD_PQ_RESET_WHITE_BALANCE);
    METHOD(getEyePQModeIndexToSave, CMD_PQ_GET_EYE_PQ_MODE_INDEX_TO_SAVE);
    METHOD(getVideoDisplayZoneTilingEnable, CMD_PQ_GET_VIDEO_DISPLAY_ZONE_TILING_ENABLE);
    METHOD(setVideoDisplayZoneTilingEnable, CMD_PQ_SET_VIDEO_DISPLAY_ZONE_TILING_ENABLE);
    METHOD(getVideoDisplayZoneCompEnable, CMD_PQ_GET_VIDEO_DISPLAY_ZONE_COMP_ENABLE);
    METHOD(setVideoDisplayZoneCompEnable, CMD_PQ_SET_VIDEO_DISPLAY_ZONE_COMP_ENABLE);
    builder.method("getHDCPVersion", Row::CMD_PQ_GET_HDCP_VERSION, &IPQCtrl::getHDCPVersion,
                   "source");
    METHOD(setHDCPVersion, CMD_PQ_SET_HDCP_VERSION);
    METHOD(getAspectMode, CMD_PQ_GET_ASPECT_MODE);
    METHOD(setAspectMode, CMD_PQ_SET_ASPECT_MODE);
}

}  // namespace tarn::registry
