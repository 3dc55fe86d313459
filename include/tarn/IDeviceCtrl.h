#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>

namespace android {

/** A USB power state; the values are the service's. */
enum _EnumUsbPowerStatus : int32_t {};

/** How the USB switch follows the input source; the values are the service's. */
enum _EnumUsbSWFollowConfig : int32_t {};

/**
 * The board's devices: lists and names, the shared USB hub, device and USB power, the NFC tag.
 *
 * Any thread may call; every call blocks for one exchange with the service. Arguments are not
 * checked: their meaning is the service's. Unless said otherwise, an int result is the service's
 * status word, -1 when the command failed; a bool result is false when the command failed.
 */
class IDeviceCtrl : public virtual RefBase {
  public:
    /** Returns the list of devices, as one service-defined number. */
    virtual int getDeviceList() = 0;

    /** Returns the second list of devices, as one service-defined number. */
    virtual int getSecondDeviceList() = 0;

    /** Returns the third list of devices, as one service-defined number. */
    virtual int getThirdDeviceList() = 0;

    /** Returns the board's name; empty when the command failed. */
    virtual String16 getBoardName() = 0;

    /** Returns the model's name; empty when the command failed. */
    virtual String16 getModelName() = 0;

    /**
     * Switches the side port to a host. Returns the first integer of the reply, -1 when the
     * command failed.
     */
    virtual int setUsbSwitchForSide(int host) = 0;

    /**
     * Returns the host that the side port is switched to: the second integer of the reply, -1
     * when the command failed.
     */
    virtual int getUsbSwitchForSide() = 0;

    /**
     * Switches all ports to a host. Returns the first integer of the reply, -1 when the command
     * failed.
     */
    virtual int setUsbSwitchForAll(int host) = 0;

    /**
     * Returns the host that all ports are switched to: the second integer of the reply, -1 when
     * the command failed.
     */
    virtual int getUsbSwitchForAll() = 0;

    /**
     * Switches the touch input to a host. Returns the first integer of the reply, -1 when the
     * command failed.
     */
    virtual int setUsbSwitchForTouchIn(int host) = 0;

    /**
     * Returns the host that the touch input is switched to: the second integer of the reply, -1
     * when the command failed.
     */
    virtual int getUsbSwitchForTouchIn() = 0;

    /**
     * Switches the picture-in-picture touch path to a host. Returns the first integer of the
     * reply, -1 when the command failed.
     */
    virtual int setUsbSwitchForPipTouch(int host) = 0;

    /**
     * Returns the host that the picture-in-picture touch path is switched to: the second integer
     * of the reply, -1 when the command failed.
     */
    virtual int getUsbSwitchForPipTouch() = 0;

    /** Powers one device on or off; both numbers are service-defined. */
    virtual int ctrlDevicePower(int device, int state) = 0;

    /** Returns the USB power status. */
    virtual int getUsbPowerStatus() = 0;

    /** Sets the USB power status; true when the service says so. */
    virtual bool setUsbPowerStatus(_EnumUsbPowerStatus status) = 0;

    /** Returns the message of the NFC tag; empty when the command failed. */
    virtual String16 getNfcTagMsg() = 0;

    /** Writes the message of the NFC tag; true when the service says so. */
    virtual bool setNfcTagMsg(String16 msg) = 0;

    /** Sets how the USB switch follows the input source; true when the service says so. */
    virtual bool setUsbSwFollowConfig(_EnumUsbSWFollowConfig config) = 0;

    /** Returns how the USB switch follows the input source. */
    virtual int getUsbSwFollowConfig() = 0;

    virtual ~IDeviceCtrl() = default;
};

}  // namespace android
