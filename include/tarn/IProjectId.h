#pragma once

#include <binder/Parcel.h>
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
 * Every call blocks for one exchange with the service; any thread may call. An int result is the
 * service's status word, -1 when the command failed; a text is empty when the command failed.
 *
 * The operations that take a Parcel replace its contents with a configuration set, whose layout is
 * service-defined, at position 0, and return 0; they return -1 and leave it alone when the command
 * failed.
 */
class IProjectId : public virtual RefBase {
  public:
    /** Selects the project, 0 to 13; any other index gives -1 and sends nothing. */
    virtual int setProjectIdByIndex(_EnumProjectId_ index) = 0;

    /** Returns the project, 0 to 13; 0 when the command failed or gave another index. */
    virtual _EnumProjectId_ getProjectIdIndex() = 0;

    /** Returns the upper end of the project's backlight range. */
    virtual int getProjectIdBacklightMax() = 0;

    /** Returns the lower end of the project's backlight range. */
    virtual int getProjectIdBacklightMin() = 0;

    /** Fetches the brightness, contrast, saturation and hue configuration. */
    virtual int getProjectIdPqBcshCfgs(Parcel* cfgs) = 0;

    /** Fetches the white balance configuration. */
    virtual int getProjectIdPqWBCfgs(Parcel* cfgs) = 0;

    /** Fetches the SPG configuration. */
    virtual int getProjectIdPqSPGCfgs(Parcel* cfgs) = 0;

    /** Returns whether the project's configuration file has been parsed. */
    virtual int getProjectIdIniPraserDone() = 0;

    /** Fetches the DBC configuration. */
    virtual int getProjectIdDbcCfgs(Parcel* cfgs) = 0;

    /** Fetches the DCR configuration. */
    virtual int getProjectIdDcrCfgs(Parcel* cfgs) = 0;

    /** Fetches the boot logo configuration. */
    virtual int getProjectIdLogoCfgs(Parcel* cfgs) = 0;

    /** Fetches the boot video configuration. */
    virtual int getProjectIdBootVideoCfgs(Parcel* cfgs) = 0;

    /** Fetches the boot animation configuration. */
    virtual int getProjectIdBootAnimationCfgs(Parcel* cfgs) = 0;

    /** Sets the replace state; the states are service-defined. */
    virtual int setProjectIdReplaceState(int state) = 0;

    /** Returns the replace state. */
    virtual int getProjectIdReplaceState() = 0;

    /** Copies the project's file to the boot video. */
    virtual int CopyPidfileToBootvideo() = 0;

    /** Returns the path of a boot logo found on a USB disk; empty when there is none. */
    virtual String16 findUdiskLogoPath() = 0;

    /** Returns the path of a boot animation found on a USB disk; empty when there is none. */
    virtual String16 findUdiskAnimationPath() = 0;

    /** Returns the path of a boot video found on a USB disk; empty when there is none. */
    virtual String16 findUdiskBootVideoPath() = 0;

    /** Presets the application black list. Returns 0, or -1 for any other answer. */
    virtual int presetApkBlackList() = 0;

    /** Presets the EDID file. Returns 0, or -1 for any other answer. */
    virtual int presetEdidFile() = 0;

    /** Tells whether the fixed eye-protection picture is on; false when the command failed. */
    virtual bool getEyePqFixedEnable() = 0;

    /** Returns the setting of the fixed eye-protection picture. */
    virtual String16 getEyePqFixedValue() = 0;

    /** Returns the Wi-Fi country code. */
    virtual String16 getWifiCountryCode() = 0;

    virtual ~IProjectId() = default;
};

}  // namespace android
