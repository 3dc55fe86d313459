#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

#include <string>

namespace android {

/**
 * An attached motion-sensing device.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns -1, false or an empty text. An int result is the service's status word, a bool result its
 * answer. Arguments are passed on unchecked.
 */
class TARN_EXPORT IBitmotionCtrl : public virtual RefBase {
  public:
    // First, unlike in the other interfaces: its place in the table of virtual operations.
    virtual ~IBitmotionCtrl() = default;

    /** Sets the brightness, on a service-defined scale. */
    virtual bool setBrightness(int brightness) = 0;

    /** Enables or disables the device port of that service-defined name. */
    virtual int setDevicePortEnabled(const String16& port, bool enabled) = 0;

    /** Sets the address of the first WAN port; the text is not parsed here. */
    virtual int setWan1Address(const String16& address) = 0;

    /** Sets the address of the second WAN port; the text is not parsed here. */
    virtual int setWan2Address(const String16& address) = 0;

    /** Updates the device's firmware; path is passed on as text, the file is not read here. */
    virtual int updateFirmware(const String16& path) = 0;

    /** Sets the work mode, service-defined. */
    virtual int setupWorkMode(int mode) = 0;

    /** Erases what the service-defined number selects. */
    virtual int erase(unsigned int what) = 0;

    /** The device's version, UTF-8. */
    virtual std::string getVersion() = 0;
};

}  // namespace android
