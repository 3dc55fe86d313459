#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>

namespace android {

/** A USB power state; values are service-defined. */
enum _EnumUsbPowerStatus : int32_t {};

/** How the USB switch follows the input source; values are service-defined. */
enum _EnumUsbSWFollowConfig : int32_t {};

/**
 * The board's devices: lists and names, the shared USB hub, device and USB power, the NFC tag.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns -1, false or an empty text. An int result is the service's status word (a getter's value
 * or a setter's outcome), except in the USB switches; a bool result is the service's answer.
 * Arguments are passed on unchecked. The numbers of devices, hosts and states are service-defined.
 *
 * The USB switches move a part of the shared hub to a host. A setter returns the first number
 * after the status, whose meaning is service-defined; a getter returns the second one, the host.
 */
class TARN_EXPORT IDeviceCtrl : public virtual RefBase {
  public:
    /** The list of devices as one service-defined number. */
    virtual int getDeviceList() = 0;

    /** The second list of devices as one service-defined number. */
    virtual int getSecondDeviceList() = 0;

    /** The third list of devices as one service-defined number. */
    virtual int getThirdDeviceList() = 0;

    /** The board's name. A failed call also logs an error line, which names another command. */
    virtual String16 getBoardName() = 0;

    /** The model's name. A failed call also logs an error line. */
    virtual String16 getModelName() = 0;

    /** Moves the side port to a host. */
    virtual int setUsbSwitchForSide(int host) = 0;

    /** Host of the side port. */
    virtual int getUsbSwitchForSide() = 0;

    /** Moves all ports to a host. */
    virtual int setUsbSwitchForAll(int host) = 0;

    /** Host of all ports. */
    virtual int getUsbSwitchForAll() = 0;

    /** Moves the touch input to a host. */
    virtual int setUsbSwitchForTouchIn(int host) = 0;

    /** Host of the touch input. */
    virtual int getUsbSwitchForTouchIn() = 0;

    /** Moves the picture-in-picture touch path to a host. */
    virtual int setUsbSwitchForPipTouch(int host) = 0;

    /** Host of the picture-in-picture touch path. */
    virtual int getUsbSwitchForPipTouch() = 0;

    /** Powers one device on or off; device and state are service-defined numbers. */
    virtual int ctrlDevicePower(int device, int state) = 0;

    /** USB power state, a service-defined number. */
    virtual int getUsbPowerStatus() = 0;

    /** Sets the USB power state. */
    virtual bool setUsbPowerStatus(_EnumUsbPowerStatus status) = 0;

    /** Message of the NFC tag. */
    virtual String16 getNfcTagMsg() = 0;

    /** Writes the message of the NFC tag. */
    virtual bool setNfcTagMsg(String16 msg) = 0;

    /** Sets how the USB switch follows the input source. */
    virtual bool setUsbSwFollowConfig(_EnumUsbSWFollowConfig config) = 0;

    /** How the USB switch follows the input source, a service-defined number. */
    virtual int getUsbSwFollowConfig() = 0;

    virtual ~IDeviceCtrl() = default;
};

}  // namespace android
