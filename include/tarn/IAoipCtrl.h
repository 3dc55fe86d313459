#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

/**
 * The audio-over-IP unit: calls, volume, firmware and link.
 *
 * Every call blocks for one exchange with the service; any thread may call. Arguments are not
 * checked: call states and volumes are service-defined. An int result is the service's status
 * word, -1 when the command failed.
 */
class IAoipCtrl : public virtual RefBase {
  public:
    /** Tells the unit the state of the call. */
    virtual int setCallStatus(int status) = 0;

    /** Sets the unit's volume. */
    virtual int setVolume(int volume) = 0;

    /** Raises the unit's volume by one step. */
    virtual int volumeUp() = 0;

    /** Lowers the unit's volume by one step. */
    virtual int volumeDown() = 0;

    /** Mutes the unit. */
    virtual int mute() = 0;

    /** Unmutes the unit. */
    virtual int unmute() = 0;

    /** Asks the unit to list its devices. Always returns "{}"; the list is not read back. */
    virtual String16 listDevices() = 0;

    /** Upgrades the unit's firmware; both texts are passed on unchanged, in this order. */
    virtual int upgradeFirmware(const String16& first, const String16& second) = 0;

    /** Returns the status of the unit's link. */
    virtual int getLocalStatus() = 0;

    /** Runs the unit's AT test. */
    virtual int testAT() = 0;

    virtual ~IAoipCtrl() = default;
};

}  // namespace android
