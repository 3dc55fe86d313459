#pragma once

#include <tarn/Export.h>
#include <tarn/TarnTypes.h>
#include <utils/RefBase.h>

#include <cstdint>

namespace android {

/** An HDCP version; the values are service-defined. */
enum _EnumHdcpVersion : int32_t {};

/** An aspect mode; the values are service-defined. */
enum _EnumAspect_ : int32_t {};

/**
 * One preset colour-temperature entry. Fields in the order of the reply, after a leading number
 * that is dropped; meanings are service-defined.
 */
struct PresetColorTempValues {
    int32_t first = 0;
    int32_t second = 0;
    int32_t third = 0;
};

/**
 * The panel's picture quality: dynamic backlight, white balance, basic picture settings, display
 * zones, HDCP version and aspect mode.
 *
 * Calls block until the service has answered; any thread may call. Unless noted, a failed call (see
 * ITarnManager) returns -1 or false, an int result is the service's status word, and a bool result
 * is the service's answer. Arguments are passed on unchecked; scales, units and modes are
 * service-defined.
 */
class TARN_EXPORT IPQCtrl : public virtual RefBase {
  public:
    /** True when DCR, dynamic contrast by backlight, is on. */
    virtual bool getDCREnable() = 0;

    /** Returns the highest backlight level that DCR uses. */
    virtual int getDcrMaxBacklight() = 0;

    /** Returns the lowest backlight level that DCR uses. */
    virtual int getDcrMinBacklight() = 0;

    /** Returns the time of one DCR step; unit service-defined. */
    virtual int getDcrStepTime() = 0;

    /** Returns the size of one DCR step; scale service-defined. */
    virtual int getDcrStepValue() = 0;

    /** Switches DCR. */
    virtual bool setDCREnable(bool on) = 0;

    /** Sets the highest backlight level that DCR uses. */
    virtual int setDcrMaxBacklight(int level) = 0;

    /** Sets the lowest backlight level that DCR uses. */
    virtual int setDcrMinBacklight(int level) = 0;

    /** Sets the time of one DCR step, in the unit of getDcrStepTime(). */
    virtual int setDcrStepTime(int time) = 0;

    /** Sets the size of one DCR step, on the scale of getDcrStepValue(). */
    virtual int setDcrStepValue(int value) = 0;

    /** True when DBC, dynamic backlight control, is on. */
    virtual bool getDBCEnable() = 0;

    /** Switches DBC. */
    virtual bool setDBCEnable(bool on) = 0;

    /** Returns the stored white-balance gain of red; scale service-defined. */
    virtual int getPQRGain() = 0;

    /** Sets and stores the white-balance gain of red; setPQRGainWithoutSave() does not store. */
    virtual int setPQRGain(int gain) = 0;

    /** As getPQRGain(), for green. */
    virtual int getPQGGain() = 0;

    /** As setPQRGain(), for green. */
    virtual int setPQGGain(int gain) = 0;

    /** As getPQRGain(), for blue. */
    virtual int getPQBGain() = 0;

    /** As setPQRGain(), for blue. */
    virtual int setPQBGain(int gain) = 0;

    /** Returns the colour temperature; scale service-defined. */
    virtual int getColorTemp() = 0;

    /** Sets the colour temperature, on the same scale. */
    virtual int setColorTemp(int colorTemp) = 0;

    /** Returns the saturation; scale service-defined. */
    virtual int getSaturation() = 0;

    /** Sets the saturation, on the same scale. */
    virtual int setSaturation(int saturation) = 0;

    /** Returns the sharpness; scale service-defined. */
    virtual int getSharpness() = 0;

    /** Sets the sharpness, on the same scale. */
    virtual int setSharpness(int sharpness) = 0;

    /** Returns the contrast; scale service-defined. */
    virtual int getContrast() = 0;

    /** Sets the contrast, on the same scale. */
    virtual int setContrast(int contrast) = 0;

    /** Returns the hue; scale service-defined. */
    virtual int getHue() = 0;

    /** Sets the hue, on the same scale. */
    virtual int setHue(int hue) = 0;

    /** Returns the picture mode; modes are service-defined. */
    virtual int getPictureMode() = 0;

    /** Sets the picture mode, one as getPictureMode() returns it. */
    virtual int setPictureMode(int mode) = 0;

    /** Returns the gamma mode; modes are service-defined. */
    virtual int getGammaMode() = 0;

    /** Sets the gamma mode, one as getGammaMode() returns it. */
    virtual int setGammaMode(int mode) = 0;

    /** Returns the picture's brightness, not the backlight's; scale service-defined. */
    virtual int getBrightness() = 0;

    /** Sets the picture's brightness, on the same scale. */
    virtual int setBrightness(int brightness) = 0;

    /** Returns the applied white-balance gain of red, stored or not. */
    virtual int getPQRGainWithoutSave() = 0;

    /** Applies a white-balance gain of red without storing it. */
    virtual int setPQRGainWithoutSave(int gain) = 0;

    /** As getPQRGainWithoutSave(), for green. */
    virtual int getPQGGainWithoutSave() = 0;

    /** As setPQRGainWithoutSave(), for green. */
    virtual int setPQGGainWithoutSave(int gain) = 0;

    /** As getPQRGainWithoutSave(), for blue. */
    virtual int getPQBGainWithoutSave() = 0;

    /** As setPQRGainWithoutSave(), for blue. */
    virtual int setPQBGainWithoutSave(int gain) = 0;

    /** Writes a preset colour-temperature entry: five service-defined numbers in their order. */
    virtual int setPresetColorTempMode(int a, int b, int c, int d, int e) = 0;

    /**
     * Returns the preset entry of two service-defined numbers; all 0 when the call failed. Every
     * call logs an error line.
     */
    virtual PresetColorTempValues getPresetColorTempMode(int a, int b) = 0;

    /** Resets the white balance to service-defined gains. */
    virtual int resetWhiteBalance() = 0;

    /**
     * Returns the index of the eye-care picture mode to be saved; 3 when the call failed. Every
     * call logs warnings.
     */
    virtual int getEyePQModeIndexToSave() = 0;

    /** True when the tiling of video display zones is on. */
    virtual bool getVideoDisplayZoneTilingEnable() = 0;

    /** Switches the tiling of video display zones; enabled is a number, sent as it is. */
    virtual bool setVideoDisplayZoneTilingEnable(int enabled) = 0;

    /** True when the compensation of video display zones is on. */
    virtual bool getVideoDisplayZoneCompEnable() = 0;

    /** Switches the compensation of video display zones; enabled is a number, sent as it is. */
    virtual bool setVideoDisplayZoneCompEnable(int enabled) = 0;

    /** Always returns source: it is not sent, and the service's answer is dropped. */
    virtual int getHDCPVersion(_TarnEnumInputSourceId_ source) = 0;

    /** Sets the HDCP version of one input source. */
    virtual bool setHDCPVersion(_TarnEnumInputSourceId_ source, _EnumHdcpVersion version) = 0;

    /** Returns the aspect mode, an _EnumAspect_. */
    virtual int getAspectMode() = 0;

    /** Sets the aspect mode. True when the status is not 0, so also when the call failed. */
    virtual bool setAspectMode(_EnumAspect_ mode) = 0;

    virtual ~IPQCtrl() = default;
};

}  // namespace android
