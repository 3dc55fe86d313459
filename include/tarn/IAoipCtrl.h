#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

/**
 * The audio-over-IP unit: calls, volume, firmware and link.
 *
 * Calls block until the service has answered; any thread may call. An int result is the service's
 * status word, or -1 when the call failed (see ITarnManager). Arguments are passed on unchecked.
 */
class TARN_EXPORT IAoipCtrl : public virtual RefBase {
  public:
    /** Tells the unit the state of the call, a service-defined number. */
    virtual int setCallStatus(int status) = 0;

    /** Sets the unit's volume, on a service-defined scale. */
    virtual int setVolume(int volume) = 0;

    /** Raises the unit's volume by a service-defined step. */
    virtual int volumeUp() = 0;

    /** Lowers the unit's volume by a service-defined step. */
    virtual int volumeDown() = 0;

    /** Mutes the unit; unmute() undoes it. */
    virtual int mute() = 0;

    /** Undoes mute(). */
    virtual int unmute() = 0;

    /**
     * Sends its command, but reads no list back: always returns "{}", also when the call failed.
     */
    virtual String16 listDevices() = 0;

    /** Upgrades the unit's firmware; the meaning of both texts is service-defined. */
    virtual int upgradeFirmware(const String16& first, const String16& second) = 0;

    /** State of the unit's link, a service-defined number. */
    virtual int getLocalStatus() = 0;

    /** Runs the unit's AT test; the result is a service-defined number. */
    virtual int testAT() = 0;

    virtual ~IAoipCtrl() = default;
};

}  // namespace android
