#include <tarn/IPQCtrl.h>

#include "protocol/Commands.h"
#include "registry/Builder.h"

using namespace android;

namespace tarnctl {

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
            .method("getDCREnable", CMD_PQ_GET_DCR_ENABLE, &IPQCtrl::getDCREnable)
            .method("getDcrMaxBacklight", CMD_PQ_GET_DCR_MAX_BACKLIGHT,
                    &IPQCtrl::getDcrMaxBacklight)
            .method("getDcrMinBacklight", CMD_PQ_GET_DCR_MIN_BACKLIGHT,
                    &IPQCtrl::getDcrMinBacklight)
            .method("getDcrStepTime", CMD_PQ_GET_DCR_STEP_TIME, &IPQCtrl::getDcrStepTime)
            .method("getDcrStepValue", CMD_PQ_GET_DCR_STEP_VALUE, &IPQCtrl::getDcrStepValue)
            .method("setDCREnable", CMD_PQ_SET_DCR_ENABLE, &IPQCtrl::setDCREnable, "on")
            .method("setDcrMaxBacklight", CMD_PQ_SET_DCR_MAX_BACKLIGHT,
                    &IPQCtrl::setDcrMaxBacklight, "level")
            .method("setDcrMinBacklight", CMD_PQ_SET_DCR_MIN_BACKLIGHT,
                    &IPQCtrl::setDcrMinBacklight, "level")
            .method("setDcrStepTime", CMD_PQ_SET_DCR_STEP_TIME, &IPQCtrl::setDcrStepTime, "time")
            .method("setDcrStepValue", CMD_PQ_SET_DCR_STEP_VALUE, &IPQCtrl::setDcrStepValue,
                    "value")
            .method("getDBCEnable", CMD_PQ_GET_DBC_ENABLE, &IPQCtrl::getDBCEnable)
            .method("setDBCEnable", CMD_PQ_SET_DBC_ENABLE, &IPQCtrl::setDBCEnable, "on")
            .method("getPQRGain", CMD_PQ_GET_R_GAIN, &IPQCtrl::getPQRGain)
            .method("setPQRGain", CMD_PQ_SET_R_GAIN, &IPQCtrl::setPQRGain, "gain")
            .method("getPQGGain", CMD_PQ_GET_G_GAIN, &IPQCtrl::getPQGGain)
            .method("setPQGGain", CMD_PQ_SET_G_GAIN, &IPQCtrl::setPQGGain, "gain")
            .method("getPQBGain", CMD_PQ_GET_B_GAIN, &IPQCtrl::getPQBGain)
            .method("setPQBGain", CMD_PQ_SET_B_GAIN, &IPQCtrl::setPQBGain, "gain")
            .method("getColorTemp", CMD_PQ_GET_COLOR_TEMP, &IPQCtrl::getColorTemp)
            .method("setColorTemp", CMD_PQ_SET_COLOR_TEMP, &IPQCtrl::setColorTemp, "colorTemp")
            .method("getSaturation", CMD_PQ_GET_SATURATION, &IPQCtrl::getSaturation)
            .method("setSaturation", CMD_PQ_SET_SATURATION, &IPQCtrl::setSaturation, "saturation")
            .method("getSharpness", CMD_PQ_GET_SHARPNESS, &IPQCtrl::getSharpness)
            .method("setSharpness", CMD_PQ_SET_SHARPNESS, &IPQCtrl::setSharpness, "sharpness")
            .method("getContrast", CMD_PQ_GET_CONTRAST, &IPQCtrl::getContrast)
            .method("setContrast", CMD_PQ_SET_CONTRAST, &IPQCtrl::setContrast, "contrast")
            .method("getHue", CMD_PQ_GET_HUE, &IPQCtrl::getHue)
            .method("setHue", CMD_PQ_SET_HUE, &IPQCtrl::setHue, "hue")
            .method("getPictureMode", CMD_PQ_GET_PICTURE_MODE, &IPQCtrl::getPictureMode)
            .method("setPictureMode", CMD_PQ_SET_PICTURE_MODE, &IPQCtrl::setPictureMode, "mode")
            .method("getGammaMode", CMD_PQ_GET_GAMMA_MODE, &IPQCtrl::getGammaMode)
            .method("setGammaMode", CMD_PQ_SET_GAMMA_MODE, &IPQCtrl::setGammaMode, "mode")
            .method("getBrightness", CMD_PQ_GET_BRIGHTNESS, &IPQCtrl::getBrightness)
            .method("setBrightness", CMD_PQ_SET_BRIGHTNESS, &IPQCtrl::setBrightness, "brightness")
            .method("getPQRGainWithoutSave", CMD_PQ_GET_R_GAIN_WITHOUT_SAVE,
                    &IPQCtrl::getPQRGainWithoutSave)
            .method("setPQRGainWithoutSave", CMD_PQ_SET_R_GAIN_WITHOUT_SAVE,
                    &IPQCtrl::setPQRGainWithoutSave, "gain")
            .method("getPQGGainWithoutSave", CMD_PQ_GET_G_GAIN_WITHOUT_SAVE,
                    &IPQCtrl::getPQGGainWithoutSave)
            .method("setPQGGainWithoutSave", CMD_PQ_SET_G_GAIN_WITHOUT_SAVE,
                    &IPQCtrl::setPQGGainWithoutSave, "gain")
            .method("getPQBGainWithoutSave", CMD_PQ_GET_B_GAIN_WITHOUT_SAVE,
                    &IPQCtrl::getPQBGainWithoutSave)
            .method("setPQBGainWithoutSave", CMD_PQ_SET_B_GAIN_WITHOUT_SAVE,
                    &IPQCtrl::setPQBGainWithoutSave, "gain")
            .method("setPresetColorTempMode", CMD_PQ_SET_PRESET_COLOR_TEMP_MODE,
                    &IPQCtrl::setPresetColorTempMode, "a, b, c, d, e")
            .method("getPresetColorTempMode", CMD_PQ_GET_PRESET_COLOR_TEMP_MODE,
                    &IPQCtrl::getPresetColorTempMode, "a, b")
            .method("resetWhiteBalance", CMD_PQ_RESET_WHITE_BALANCE, &IPQCtrl::resetWhiteBalance)
            .method("getEyePQModeIndexToSave", CMD_PQ_GET_EYE_PQ_MODE_INDEX_TO_SAVE,
                    &IPQCtrl::getEyePQModeIndexToSave)
            .method("getVideoDisplayZoneTilingEnable", CMD_PQ_GET_VIDEO_DISPLAY_ZONE_TILING_ENABLE,
                    &IPQCtrl::getVideoDisplayZoneTilingEnable)
            .method("setVideoDisplayZoneTilingEnable", CMD_PQ_SET_VIDEO_DISPLAY_ZONE_TILING_ENABLE,
                    &IPQCtrl::setVideoDisplayZoneTilingEnable, "enabled")
            .method("getVideoDisplayZoneCompEnable", CMD_PQ_GET_VIDEO_DISPLAY_ZONE_COMP_ENABLE,
                    &IPQCtrl::getVideoDisplayZoneCompEnable)
            .method("setVideoDisplayZoneCompEnable", CMD_PQ_SET_VIDEO_DISPLAY_ZONE_COMP_ENABLE,
                    &IPQCtrl::setVideoDisplayZoneCompEnable, "enabled")
            .method("getHDCPVersion", CMD_PQ_GET_HDCP_VERSION, &IPQCtrl::getHDCPVersion, "source")
            .method("setHDCPVersion", CMD_PQ_SET_HDCP_VERSION, &IPQCtrl::setHDCPVersion,
                    "source, version")
            .method("getAspectMode", CMD_PQ_GET_ASPECT_MODE, &IPQCtrl::getAspectMode)
            .method("setAspectMode", CMD_PQ_SET_ASPECT_MODE, &IPQCtrl::setAspectMode, "mode");
}

}  // namespace tarnctl
