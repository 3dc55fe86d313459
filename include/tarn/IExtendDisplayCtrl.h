#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

#include <string>
#include <vector>

namespace android {

/**
 * The extended (second) display output and the USB-C video output: switch, HDCP, pass-through,
 * resolution and colour format.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns -1, an empty text or an empty list; a failed text or list getter also logs an error line.
 * An int result is the service's status word: a getter's value or a setter's outcome. Arguments are
 * passed on unchecked. States and the spelling of resolutions and colour formats are
 * service-defined; std::string texts are UTF-8.
 */
class TARN_EXPORT IExtendDisplayCtrl : public virtual RefBase {
  public:
    /** HDCP state of the USB-C output, a service-defined number. */
    virtual int getTypecOutHDCPStatus() = 0;

    /** Sets the HDCP state of the USB-C output, a service-defined number. */
    virtual int setTypecOutHDCPStatus(int status) = 0;

    /** HDCP state of the extended display, a service-defined number. */
    virtual int getExtendDisplayHDCPStatus() = 0;

    /** Sets the HDCP state of the extended display, a service-defined number. */
    virtual int setExtendDisplayHDCPStatus(int status) = 0;

    /** Switches the extended display; enabled is a service-defined number. */
    virtual int setExtendDisplayEnabled(int enabled) = 0;

    /** As setExtendDisplayEnabled(), with a service-defined number before the switch. */
    virtual int setExtendDisplayEnabled_p2(int selector, int enabled) = 0;

    /** Switch state of the extended display: -1 is a failure, not on. */
    virtual int getExtendDisplayEnabled() = 0;

    /** Switches the pass-through from HDMI input to output on or off. */
    virtual int setHdmiInOutEnabled(bool on) = 0;

    /** Switch state of the pass-through from HDMI input to output: -1 is a failure, not on. */
    virtual int getHdmiInOutEnabled() = 0;

    /** Resolutions that the user may choose, in the order of the reply. */
    virtual std::vector<std::string> getExtendDisplayUserResolutionList() = 0;

    /** Sets the resolution; its spelling is service-defined. */
    virtual int setExtendDisplayResolution(const String16& resolution) = 0;

    /** Current resolution, in the spelling of the service. */
    virtual String16 getExtendDisplayResolution() = 0;

    /** Current colour format, in the spelling of the service. */
    virtual String16 getExtendDisplayColorFormat() = 0;

    /** Sets the colour format; its spelling is service-defined. */
    virtual int setExtendDisplayColorFormat(const String16& format) = 0;

    /** Colour formats that are supported, in the order of the reply. The name is spelt so. */
    virtual std::vector<std::string> getExtendDisplaySuportColorFormatList() = 0;

    virtual ~IExtendDisplayCtrl() = default;
};

}  // namespace android
