#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

#include <string>
#include <vector>

namespace android {

/**
 * The extended (second) display output and the USB-C video output: switch, HDCP, pass-through,
 * resolution and colour format.
 *
 * Every call blocks for one exchange with the service; any thread may call. Arguments are not
 * checked: states and the spelling of resolutions and colour formats are service-defined. An int
 * result is the service's status word, -1 when the command failed.
 */
class IExtendDisplayCtrl : public virtual RefBase {
  public:
    /** Returns the HDCP state of the USB-C output. */
    virtual int getTypecOutHDCPStatus() = 0;

    /** Sets the HDCP state of the USB-C output. */
    virtual int setTypecOutHDCPStatus(int status) = 0;

    /** Returns the HDCP state of the extended display. */
    virtual int getExtendDisplayHDCPStatus() = 0;

    /** Sets the HDCP state of the extended display. */
    virtual int setExtendDisplayHDCPStatus(int status) = 0;

    /** Switches the extended display; the number is passed on unchanged. */
    virtual int setExtendDisplayEnabled(int enabled) = 0;

    /** As setExtendDisplayEnabled(), with a service-defined number before the switch. */
    virtual int setExtendDisplayEnabled_p2(int selector, int enabled) = 0;

    /** Returns the switch state of the extended display. */
    virtual int getExtendDisplayEnabled() = 0;

    /** Switches the pass-through from HDMI input to output. */
    virtual int setHdmiInOutEnabled(bool on) = 0;

    /** Returns the switch state of the pass-through from HDMI input to output. */
    virtual int getHdmiInOutEnabled() = 0;

    /** Returns the resolutions that the user may choose; empty when the command failed. */
    virtual std::vector<std::string> getExtendDisplayUserResolutionList() = 0;

    /** Sets the resolution. */
    virtual int setExtendDisplayResolution(const String16& resolution) = 0;

    /** Returns the resolution; empty when the command failed. */
    virtual String16 getExtendDisplayResolution() = 0;

    /** Returns the colour format; empty when the command failed. */
    virtual String16 getExtendDisplayColorFormat() = 0;

    /** Sets the colour format. */
    virtual int setExtendDisplayColorFormat(const String16& format) = 0;

    /** Returns the colour formats that are supported; empty when the command failed. */
    virtual std::vector<std::string> getExtendDisplaySuportColorFormatList() = 0;

    virtual ~IExtendDisplayCtrl() = default;
};

}  // namespace android
