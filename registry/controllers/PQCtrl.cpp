#include <tarn/IPQCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultWriter<PresetColorTempValues> {
    static constexpr const char* kType = "preset";
    static Json::Value toJson(const PresetColorTempValues& values) {
        return fields(
                {{"first", values.first}, {"second", values.second}, {"third", values.third}});
    }
};

void registerPQCtrl(std::vector<Controller>* registry) {
    Builder<IPQCtrl>(registry, "pq", "PQCtrl", &ITarnManager::getPQCtrol)
            .method("getDCREnable", Row::CMD_PQ_GET_DCR_ENABLE, &IPQCtrl::getDCREnable)
            .method("getDcrMaxBacklight", Row::CMD_PQ_GET_DCR_MAX_BACKLIGHT,
                    &IPQCtrl::getDcrMaxBacklight)
            .method("getDcrMinBacklight", Row::CMD_PQ_GET_DCR_MIN_BACKLIGHT,
                    &IPQCtrl::getDcrMinBacklight)
            .method("getDcrStepTime", Row::CMD_PQ_GET_DCR_STEP_TIME, &IPQCtrl::getDcrStepTime)
            .method("getDcrStepValue", Row::CMD_PQ_GET_DCR_STEP_VALUE, &IPQCtrl::getDcrStepValue)
            .method("setDCREnable", Row::CMD_PQ_SET_DCR_ENABLE, &IPQCtrl::setDCREnable, "on")
            .method("setDcrMaxBacklight", Row::CMD_PQ_SET_DCR_MAX_BACKLIGHT,
                    &IPQCtrl::setDcrMaxBacklight, "level")
            .method("setDcrMinBacklight", Row::CMD_PQ_SET_DCR_MIN_BACKLIGHT,
                    &IPQCtrl::setDcrMinBacklight, "level")
            .method("setDcrStepTime", Row::CMD_PQ_SET_DCR_STEP_TIME, &IPQCtrl::setDcrStepTime,
                    "time")
            .method("setDcrStepValue", Row::CMD_PQ_SET_DCR_STEP_VALUE, &IPQCtrl::setDcrStepValue,
                    "value")
            .method("getDBCEnable", Row::CMD_PQ_GET_DBC_ENABLE, &IPQCtrl::getDBCEnable)
            .method("setDBCEnable", Row::CMD_PQ_SET_DBC_ENABLE, &IPQCtrl::setDBCEnable, "on")
            .method("getPQRGain", Row::CMD_PQ_GET_R_GAIN, &IPQCtrl::getPQRGain)
            .method("setPQRGain", Row::CMD_PQ_SET_R_GAIN, &IPQCtrl::setPQRGain, "gain")
            .method("getPQGGain", Row::CMD_PQ_GET_G_GAIN, &IPQCtrl::getPQGGain)
            .method("setPQGGain", Row::CMD_PQ_SET_G_GAIN, &IPQCtrl::setPQGGain, "gain")
            .method("getPQBGain", Row::CMD_PQ_GET_B_GAIN, &IPQCtrl::getPQBGain)
            .method("setPQBGain", Row::CMD_PQ_SET_B_GAIN, &IPQCtrl::setPQBGain, "gain")
            .method("getColorTemp", Row::CMD_PQ_GET_COLOR_TEMP, &IPQCtrl::getColorTemp)
            .method("setColorTemp", Row::CMD_PQ_SET_COLOR_TEMP, &IPQCtrl::setColorTemp, "colorTemp")
            .method("getSaturation", Row::CMD_PQ_GET_SATURATION, &IPQCtrl::getSaturation)
            .method("setSaturation", Row::CMD_PQ_SET_SATURATION, &IPQCtrl::setSaturation,
                    "saturation")
            .method("getSharpness", Row::CMD_PQ_GET_SHARPNESS, &IPQCtrl::getSharpness)
            .method("setSharpness", Row::CMD_PQ_SET_SHARPNESS, &IPQCtrl::setSharpness, "sharpness")
            .method("getContrast", Row::CMD_PQ_GET_CONTRAST, &IPQCtrl::getContrast)
            .method("setContrast", Row::CMD_PQ_SET_CONTRAST, &IPQCtrl::setContrast, "contrast")
            .method("getHue", Row::CMD_PQ_GET_HUE, &IPQCtrl::getHue)
            .method("setHue", Row::CMD_PQ_SET_HUE, &IPQCtrl::setHue, "hue")
            .method("getPictureMode", Row::CMD_PQ_GET_PICTURE_MODE, &IPQCtrl::getPictureMode)
            .method("setPictureMode", Row::CMD_PQ_SET_PICTURE_MODE, &IPQCtrl::setPictureMode,
                    "mode")
            .method("getGammaMode", Row::CMD_PQ_GET_GAMMA_MODE, &IPQCtrl::getGammaMode)
            .method("setGammaMode", Row::CMD_PQ_SET_GAMMA_MODE, &IPQCtrl::setGammaMode, "mode")
            .method("getBrightness", Row::CMD_PQ_GET_BRIGHTNESS, &IPQCtrl::getBrightness)
            .method("setBrightness", Row::CMD_PQ_SET_BRIGHTNESS, &IPQCtrl::setBrightness,
                    "brightness")
            .method("getPQRGainWithoutSave", Row::CMD_PQ_GET_R_GAIN_WITHOUT_SAVE,
                    &IPQCtrl::getPQRGainWithoutSave)
            .method("setPQRGainWithoutSave", Row::CMD_PQ_SET_R_GAIN_WITHOUT_SAVE,
                    &IPQCtrl::setPQRGainWithoutSave, "gain")
            .method("getPQGGainWithoutSave", Row::CMD_PQ_GET_G_GAIN_WITHOUT_SAVE,
                    &IPQCtrl::getPQGGainWithoutSave)
            .method("setPQGGainWithoutSave", Row::CMD_PQ_SET_G_GAIN_WITHOUT_SAVE,
                    &IPQCtrl::setPQGGainWithoutSave, "gain")
            .method("getPQBGainWithoutSave", Row::CMD_PQ_GET_B_GAIN_WITHOUT_SAVE,
                    &IPQCtrl::getPQBGainWithoutSave)
            .method("setPQBGainWithoutSave", Row::CMD_PQ_SET_B_GAIN_WITHOUT_SAVE,
                    &IPQCtrl::setPQBGainWithoutSave, "gain")
            .method("setPresetColorTempMode", Row::CMD_PQ_SET_PRESET_COLOR_TEMP_MODE,
                    &IPQCtrl::setPresetColorTempMode, "a, b, c, d, e")
            .method("getPresetColorTempMode", Row::CMD_PQ_GET_PRESET_COLOR_TEMP_MODE,
                    &IPQCtrl::getPresetColorTempMode, "a, b")
            .method("resetWhiteBalance", Row::CMD_PQ_RESET_WHITE_BALANCE,
                    &IPQCtrl::resetWhiteBalance)
            .method("getEyePQModeIndexToSave", Row::CMD_PQ_GET_EYE_PQ_MODE_INDEX_TO_SAVE,
                    &IPQCtrl::getEyePQModeIndexToSave)
            .method("getVideoDisplayZoneTilingEnable",
                    Row::CMD_PQ_GET_VIDEO_DISPLAY_ZONE_TILING_ENABLE,
                    &IPQCtrl::getVideoDisplayZoneTilingEnable)
            .method("setVideoDisplayZoneTilingEnable",
                    Row::CMD_PQ_SET_VIDEO_DISPLAY_ZONE_TILING_ENABLE,
                    &IPQCtrl::setVideoDisplayZoneTilingEnable, "enabled")
            .method("getVideoDisplayZoneCompEnable", Row::CMD_PQ_GET_VIDEO_DISPLAY_ZONE_COMP_ENABLE,
                    &IPQCtrl::getVideoDisplayZoneCompEnable)
            .method("setVideoDisplayZoneCompEnable", Row::CMD_PQ_SET_VIDEO_DISPLAY_ZONE_COMP_ENABLE,
                    &IPQCtrl::setVideoDisplayZoneCompEnable, "enabled")
            .method("getHDCPVersion", Row::CMD_PQ_GET_HDCP_VERSION, &IPQCtrl::getHDCPVersion,
                    "source")
            .method("setHDCPVersion", Row::CMD_PQ_SET_HDCP_VERSION, &IPQCtrl::setHDCPVersion,
                    "source, version")
            .method("getAspectMode", Row::CMD_PQ_GET_ASPECT_MODE, &IPQCtrl::getAspectMode)
            .method("setAspectMode", Row::CMD_PQ_SET_ASPECT_MODE, &IPQCtrl::setAspectMode, "mode");
}

}  // namespace tarn::registry
