#pragma once

#include <binder/Parcel.h>
#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>

namespace android {

/** A panel product that the board is built into, by its index. */
enum _EnumProjectId_ : int32_t {
    PROJECT_ID_0 = 0,
    PROJECT_ID_1 = 1,
    PROJECT_ID_2 = 2,
    PROJECT_ID_3 = 3,
    PROJECT_ID_4 = 4,
    PROJECT_ID_5 = 5,
    PROJECT_ID_6 = 6,
    PROJECT_ID_7 = 7,
    PROJECT_ID_8 = 8,
    PROJECT_ID_9 = 9,
    PROJECT_ID_10 = 10,
    PROJECT_ID_11 = 11,
    PROJECT_ID_12 = 12,
    PROJECT_ID_13 = 13,
};

/**
 * The board's project identity: which panel product it is built into, and what the service keeps
 * for that product.
 *
 * Calls block until the service has answered; any thread may call. Unless noted, a failed call (see
 * ITarnManager) returns -1, false or an empty text, an int result is the service's status word, and
 * a bool result is the service's answer.
 *
 * The operations that take a Parcel replace its contents with a configuration set, at position 0
 * and in a service-defined layout, and return 0. When the call failed they return -1 and leave it
 * as it was; an empty reply leaves it too, but returns 0.
 */
class TARN_EXPORT IProjectId : public virtual RefBase {
  public:
    /** Selects the project, 0 to 13. Any other sends nothing, logs an error line, returns -1. */
    virtual int setProjectIdByIndex(_EnumProjectId_ index) = 0;

    /**
     * Returns the project, 0 to 13. For any other answer, and when the call failed, it returns 0
     * and logs an error line.
     */
    virtual _EnumProjectId_ getProjectIdIndex() = 0;

    /** Returns the upper end of the project's backlight range; scale service-defined. */
    virtual int getProjectIdBacklightMax() = 0;

    /** Returns the lower end of the project's backlight range, on the same scale. */
    virtual int getProjectIdBacklightMin() = 0;

    /** Reads the configuration of brightness, contrast, saturation and hue. */
    virtual int getProjectIdPqBcshCfgs(Parcel* cfgs) = 0;

    /** Reads the configuration of the white balance. */
    virtual int getProjectIdPqWBCfgs(Parcel* cfgs) = 0;

    /** Reads the SPG configuration. */
    virtual int getProjectIdPqSPGCfgs(Parcel* cfgs) = 0;

    /** Returns whether the INI file is parsed, a service-defined number. The name is spelt so. */
    virtual int getProjectIdIniPraserDone() = 0;

    /** Reads the configuration of DBC, dynamic backlight control. */
    virtual int getProjectIdDbcCfgs(Parcel* cfgs) = 0;

    /** Reads the configuration of DCR, dynamic contrast by backlight. */
    virtual int getProjectIdDcrCfgs(Parcel* cfgs) = 0;

    /** Reads the configuration of the boot logo. */
    virtual int getProjectIdLogoCfgs(Parcel* cfgs) = 0;

    /** Reads the configuration of the boot video. */
    virtual int getProjectIdBootVideoCfgs(Parcel* cfgs) = 0;

    /** Reads the configuration of the boot animation. */
    virtual int getProjectIdBootAnimationCfgs(Parcel* cfgs) = 0;

    /** Sets the replace state; states are service-defined. */
    virtual int setProjectIdReplaceState(int state) = 0;

    /** Returns the replace state, one as setProjectIdReplaceState() takes it. */
    virtual int getProjectIdReplaceState() = 0;

    /** Has the service copy the project's file to the boot video. */
    virtual int CopyPidfileToBootvideo() = 0;

    /** Returns the path of a boot logo on a USB disk. Failed calls log an error line. */
    virtual String16 findUdiskLogoPath() = 0;

    /** Returns the path of a boot animation on a USB disk. Failed calls log an error line. */
    virtual String16 findUdiskAnimationPath() = 0;

    /** Returns the path of a boot video on a USB disk. Failed calls log an error line. */
    virtual String16 findUdiskBootVideoPath() = 0;

    /**
     * Presets the application black list. Returns 0 when the status is 0; for any other it returns
     * -1 and logs an error line.
     */
    virtual int presetApkBlackList() = 0;

    /**
     * Presets the EDID file. Returns 0 when the status is 0; for any other it returns -1 and logs
     * an error line.
     */
    virtual int presetEdidFile() = 0;

    /** True when the fixed eye-protection picture is on. */
    virtual bool getEyePqFixedEnable() = 0;

    /** Returns the setting of the fixed eye-protection picture, as service-defined text. */
    virtual String16 getEyePqFixedValue() = 0;

    /** Returns the Wi-Fi country code as text. */
    virtual String16 getWifiCountryCode() = 0;

    virtual ~IProjectId() = default;
};

}  // namespace android
