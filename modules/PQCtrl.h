#pragma once

#include <tarn/IPQCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class PQCtrl : public IPQCtrl {
  public:
    explicit PQCtrl(const sp<TarnManager>& manager);

    bool getDCREnable() override;
    int getDcrMaxBacklight() override;
    int getDcrMinBacklight() override;
    int getDcrStepTime() override;
    int getDcrStepValue() override;
    bool setDCREnable(bool on) override;
    int setDcrMaxBacklight(int level) override;
    int setDcrMinBacklight(int level) override;
    int setDcrStepTime(int time) override;
    int setDcrStepValue(int value) override;
    bool getDBCEnable() override;
    bool setDBCEnable(bool on) override;
    int getPQRGain() override;
    int setPQRGain(int gain) override;
    int getPQGGain() override;
    int setPQGGain(int gain) override;
    int getPQBGain() override;
    int setPQBGain(int gain) override;
    int getColorTemp() override;
    int setColorTemp(int colorTemp) override;
    int getSaturation() override;
    int setSaturation(int saturation) override;
    int getSharpness() override;
    int setSharpness(int sharpness) override;
    int getContrast() override;
    int setContrast(int contrast) override;
    int getHue() override;
    int setHue(int hue) override;
    int getPictureMode() override;
    int setPictureMode(int mode) override;
    int getGammaMode() override;
    int setGammaMode(int mode) override;
    int getBrightness() override;
    int setBrightness(int brightness) override;
    int getPQRGainWithoutSave() override;
    int setPQRGainWithoutSave(int gain) override;
    int getPQGGainWithoutSave() override;
    int setPQGGainWithoutSave(int gain) override;
    int getPQBGainWithoutSave() override;
    int setPQBGainWithoutSave(int gain) override;
    int setPresetColorTempMode(int a, int b, int c, int d, int e) override;
    PresetColorTempValues getPresetColorTempMode(int a, int b) override;
    int resetWhiteBalance() override;
    int getEyePQModeIndexToSave() override;
    bool getVideoDisplayZoneTilingEnable() override;
    bool setVideoDisplayZoneTilingEnable(int enabled) override;
    bool getVideoDisplayZoneCompEnable() override;
    bool setVideoDisplayZoneCompEnable(int enabled) override;
    int getHDCPVersion(_TarnEnumInputSourceId_ source) override;
    bool setHDCPVersion(_TarnEnumInputSourceId_ source, _EnumHdcpVersion version) override;
    int getAspectMode() override;
    bool setAspectMode(_EnumAspect_ mode) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
