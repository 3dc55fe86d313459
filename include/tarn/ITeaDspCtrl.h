#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

#include <string>

namespace android {

/**
 * The external conference audio DSP and the devices attached to it.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns -1, false or an empty text. Unless noted, an int result is the service's status word; a
 * bool result is the service's answer. Arguments are passed on unchecked; device numbers, route
 * modes, states and the contents of texts are service-defined. Texts are UTF-8.
 */
class TARN_EXPORT ITeaDspCtrl : public virtual RefBase {
  public:
    /** Switches the microphone algorithm. */
    virtual bool setTeaMicAlgorithm(bool on) = 0;

    /** True when the microphone algorithm is on. */
    virtual bool getTeaMicAlgorithm() = 0;

    /** Returns the status of the DSP; what true means is service-defined. */
    virtual bool getDeviceStatus() = 0;

    /** Returns the information about the DSP. */
    virtual std::string GetDeviceInformation() = 0;

    /** Returns the mute state of one device; both numbers are service-defined. */
    virtual int GetDeviceMute(int device) = 0;

    /** Sets the route of the audio sink over PoE; modes are service-defined. */
    virtual int SetDevicePoeSinkRouteMode(int mode) = 0;

    /** Returns the route of the audio sink over PoE, which is not the status word. */
    virtual int GetDevicePoeSinkRouteMode() = 0;

    /**
     * Tells the DSP that a device was attached to a port or detached from it; type and extra are
     * service-defined, the texts must not be null. Returns 0, or -1 when the call failed.
     */
    virtual int DevicePortAttachStateUpdate(const char* port, int type, const char* device,
                                            bool attached, const char* extra) = 0;

    /** Returns the information about all attached devices in one text. */
    virtual std::string GetAllDeviceInformation() = 0;

    /** Sets the route of the line-out sink; modes are service-defined. */
    virtual int SetDeviceLineoutSinkRouteMode(int mode) = 0;

    /** Returns the route of the line-out sink. */
    virtual int GetDeviceLineoutSinkRouteMode() = 0;

    /** Returns what is attached to the ports, in one text. */
    virtual std::string GetDevicePortAttachInformation() = 0;

    /** Sets the off-hook state; it can't be read back. */
    virtual int SetDeviceOffHook(int state) = 0;

    /** Mutes or unmutes all microphones together; mute is a number, sent as it is. */
    virtual int SetDeviceMicrophoneOverallMute(int mute) = 0;

    /** Returns the mute state of all microphones together. */
    virtual int GetDeviceMicrophoneOverallMute() = 0;

    /** Sets the ringing state; it can't be read back. */
    virtual int SetDeviceRingCall(int state) = 0;

    virtual ~ITeaDspCtrl() = default;
};

}  // namespace android
