#pragma once

#include <tarn/TarnTypes.h>
#include <utils/RefBase.h>

#include <cstdint>

namespace android {

/** An HDCP version; the values are the service's. */
enum _EnumHdcpVersion : int32_t {};

/** An aspect mode; the values are the service's. */
enum _EnumAspect_ : int32_t {};

/** One preset colour-temperature entry; the meaning of the values is the service's. */
struct PresetColorTempValues {
    int32_t first = 0;
    int32_t second = 0;
    int32_t third = 0;
};

/**
 * The panel's picture quality: dynamic backlight, white balance, basic picture settings, display
 * zones, HDCP version and aspect mode.
 *
 * Every call blocks for one exchange with the service; any thread may call. Arguments are not
 * checked: scales, units and modes are service-defined. Unless said otherwise, an int result is
 * the service's status word, -1 when the command failed; a bool result is false when the command
 * failed.
 */
class IPQCtrl : public virtual RefBase {
  public:
    /** Tells whether dynamic contrast by backlight (DCR) is on. */
    virtual bool getDCREnable() = 0;

    /** Returns the highest backlight level that DCR uses. */
    virtual int getDcrMaxBacklight() = 0;

    /** Returns the lowest backlight level that DCR uses. */
    virtual int getDcrMinBacklight() = 0;

    /** Returns the time of one DCR step, in the service's unit. */
    virtual int getDcrStepTime() = 0;

    /** Returns the size of one DCR step. */
    virtual int getDcrStepValue() = 0;

    /** Switches DCR; true when the service says so. */
    virtual bool setDCREnable(bool on) = 0;

    /** Sets the highest backlight level that DCR uses. */
    virtual int setDcrMaxBacklight(int level) = 0;

    /** Sets the lowest backlight level that DCR uses. */
    virtual int setDcrMinBacklight(int level) = 0;

    /** Sets the time of one DCR step, in the service's unit. */
    virtual int setDcrStepTime(int time) = 0;

    /** Sets the size of one DCR step. */
    virtual int setDcrStepValue(int value) = 0;

    /** Tells whether dynamic backlight control (DBC) is on. */
    virtual bool getDBCEnable() = 0;

    /** Switches DBC; true when the service says so. */
    virtual bool setDBCEnable(bool on) = 0;

    /** Returns the stored white-balance gain of red. */
    virtual int getPQRGain() = 0;

    /** Sets and stores the white-balance gain of red. */
    virtual int setPQRGain(int gain) = 0;

    /** Returns the stored white-balance gain of green. */
    virtual int getPQGGain() = 0;

    /** Sets and stores the white-balance gain of green. */
    virtual int setPQGGain(int gain) = 0;

    /** Returns the stored white-balance gain of blue. */
    virtual int getPQBGain() = 0;

    /** Sets and stores the white-balance gain of blue. */
    virtual int setPQBGain(int gain) = 0;

    /** Returns the colour temperature. */
    virtual int getColorTemp() = 0;

    /** Sets the colour temperature. */
    virtual int setColorTemp(int colorTemp) = 0;

    /** Returns the saturation. */
    virtual int getSaturation() = 0;

    /** Sets the saturation. */
    virtual int setSaturation(int saturation) = 0;

    /** Returns the sharpness. */
    virtual int getSharpness() = 0;

    /** Sets the sharpness. */
    virtual int setSharpness(int sharpness) = 0;

    /** Returns the contrast. */
    virtual int getContrast() = 0;

    /** Sets the contrast. */
    virtual int setContrast(int contrast) = 0;

    /** Returns the hue. */
    virtual int getHue() = 0;

    /** Sets the hue. */
    virtual int setHue(int hue) = 0;

    /** Returns the picture mode. */
    virtual int getPictureMode() = 0;

    /** Sets the picture mode. */
    virtual int setPictureMode(int mode) = 0;

    /** Returns the gamma mode. */
    virtual int getGammaMode() = 0;

    /** Sets the gamma mode. */
    virtual int setGammaMode(int mode) = 0;

    /** Returns the brightness. */
    virtual int getBrightness() = 0;

    /** Sets the brightness. */
    virtual int setBrightness(int brightness) = 0;

    /** Returns the applied white-balance gain of red. */
    virtual int getPQRGainWithoutSave() = 0;

    /** Applies a white-balance gain of red without storing it. */
    virtual int setPQRGainWithoutSave(int gain) = 0;

    /** Returns the applied white-balance gain of green. */
    virtual int getPQGGainWithoutSave() = 0;

    /** Applies a white-balance gain of green without storing it. */
    virtual int setPQGGainWithoutSave(int gain) = 0;

    /** Returns the applied white-balance gain of blue. */
    virtual int getPQBGainWithoutSave() = 0;

    /** Applies a white-balance gain of blue without storing it. */
    virtual int setPQBGainWithoutSave(int gain) = 0;

    /** Writes a preset colour-temperature entry; the five numbers are passed on in their order. */
    virtual int setPresetColorTempMode(int a, int b, int c, int d, int e) = 0;

    /** Returns the preset colour-temperature entry of two numbers; all 0 on failure. */
    virtual PresetColorTempValues getPresetColorTempMode(int a, int b) = 0;

    /** Resets the white balance. */
    virtual int resetWhiteBalance() = 0;

    /** Returns the index of the eye-care picture mode to be saved; 3 when the command failed. */
    virtual int getEyePQModeIndexToSave() = 0;

    /** Tells whether the tiling of video display zones is on. */
    virtual bool getVideoDisplayZoneTilingEnable() = 0;

    /** Switches the tiling of video display zones; the number is passed on unchanged. */
    virtual bool setVideoDisplayZoneTilingEnable(int enabled) = 0;

    /** Tells whether the compensation of video display zones is on. */
    virtual bool getVideoDisplayZoneCompEnable() = 0;

    /** Switches the compensation of video display zones; the number is passed on unchanged. */
    virtual bool setVideoDisplayZoneCompEnable(int enabled) = 0;

    /**
     * Asks the service for the HDCP version, but discards the answer.
     *
     * @return source itself, also when the command failed.
     */
    virtual int getHDCPVersion(_TarnEnumInputSourceId_ source) = 0;

    /** Sets the HDCP version of an input source; true when the service says so. */
    virtual bool setHDCPVersion(_TarnEnumInputSourceId_ source, _EnumHdcpVersion version) = 0;

    /** Returns the aspect mode. */
    virtual int getAspectMode() = 0;

    /** Sets the aspect mode; true when the status is not 0, so also when the command failed. */
    virtual bool setAspectMode(_EnumAspect_ mode) = 0;

    virtual ~IPQCtrl() = default;
};

}  // namespace android
