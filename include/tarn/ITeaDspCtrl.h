#pragma once

#include <utils/RefBase.h>

#include <string>

namespace android {

/**
 * The external conference audio DSP and the devices attached to it.
 *
 * Every call blocks for one exchange with the service; any thread may call. Arguments are not
 * checked: device numbers, route modes and the contents of texts are service-defined. An int
 * result is the service's status word, -1 when the command failed; a bool result is false and a
 * text is empty when the command failed.
 */
class ITeaDspCtrl : public virtual RefBase {
  public:
    /** Switches the microphone algorithm; true when the service says so. */
    virtual bool setTeaMicAlgorithm(bool on) = 0;

    /** Tells whether the microphone algorithm is on. */
    virtual bool getTeaMicAlgorithm() = 0;

    /** Returns the status of the DSP. */
    virtual bool getDeviceStatus() = 0;

    /** Returns the information about the DSP, as UTF-8. */
    virtual std::string GetDeviceInformation() = 0;

    /** Returns the mute state of one device. */
    virtual int GetDeviceMute(int device) = 0;

    /** Sets the route of the PoE audio sink. */
    virtual int SetDevicePoeSinkRouteMode(int mode) = 0;

    /** Returns the route of the PoE audio sink, read from behind the status; -1 on failure. */
    virtual int GetDevicePoeSinkRouteMode() = 0;

    /**
     * Tells the DSP that a device was attached to, or detached from, a port. The meaning of the
     * values is the service's; texts are NUL-terminated UTF-8 and must not be null.
     * Returns 0, or -1 when the command failed.
     */
    virtual int DevicePortAttachStateUpdate(const char* port, int type, const char* device,
                                            bool attached, const char* extra) = 0;

    /** Returns the information about all devices, as UTF-8. */
    virtual std::string GetAllDeviceInformation() = 0;

    /** Sets the route of the line-out sink. */
    virtual int SetDeviceLineoutSinkRouteMode(int mode) = 0;

    /** Returns the route of the line-out sink. */
    virtual int GetDeviceLineoutSinkRouteMode() = 0;

    /** Returns the information about what is attached to the ports, as UTF-8. */
    virtual std::string GetDevicePortAttachInformation() = 0;

    /** Sets the off-hook state. */
    virtual int SetDeviceOffHook(int state) = 0;

    /** Mutes or unmutes all microphones together; the number is passed on unchanged. */
    virtual int SetDeviceMicrophoneOverallMute(int mute) = 0;

    /** Returns the mute state of all microphones together. */
    virtual int GetDeviceMicrophoneOverallMute() = 0;

    /** Sets the ringing state. */
    virtual int SetDeviceRingCall(int state) = 0;

    virtual ~ITeaDspCtrl() = default;
};

}  // namespace android
