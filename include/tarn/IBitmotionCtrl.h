#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

#include <string>

namespace android {

/**
 * An attached motion-sensing device.
 *
 * Every call blocks for one exchange with the service; any thread may call. Arguments are not
 * checked: their scales and meaning are service-defined. An int result is the service's status
 * word, -1 when the command failed.
 */
class IBitmotionCtrl : public virtual RefBase {
  public:
    // First, unlike in the other interfaces: its place in the table of virtual operations.
    virtual ~IBitmotionCtrl() = default;

    /** Sets the brightness; true when the service says so, false on failure. */
    virtual bool setBrightness(int brightness) = 0;

    /** Enables or disables the device port of that name. */
    virtual int setDevicePortEnabled(const String16& port, bool enabled) = 0;

    /** Sets the address of the first WAN port. */
    virtual int setWan1Address(const String16& address) = 0;

    /** Sets the address of the second WAN port. */
    virtual int setWan2Address(const String16& address) = 0;

    /** Updates the device's firmware from a file. */
    virtual int updateFirmware(const String16& path) = 0;

    /** Sets the work mode. */
    virtual int setupWorkMode(int mode) = 0;

    /** Erases what the service-defined number selects. */
    virtual int erase(unsigned int what) = 0;

    /** Returns the device's version as UTF-8; empty when the service answers none. */
    virtual std::string getVersion() = 0;
};

}  // namespace android
