#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

#include <cstdint>
#include <vector>

namespace android {

/** A serial port; the values are service-defined. */
enum _EnumSerialDevice_ : int32_t {};

/**
 * The board's serial ports.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns -1; the bool results differ in their sense, and each method says its own. Arguments are
 * passed on unchecked.
 */
class TARN_EXPORT ISerialCtrl : public virtual RefBase {
  public:
    /** Switches a port, with a service-defined parameter. True unless the call failed. */
    virtual bool SetSerialSwitch(_EnumSerialDevice_ device, bool on, int param) = 0;

    /** Sends the values of data out of a port; data is only read. True unless the call failed. */
    virtual bool SendSerialData(_EnumSerialDevice_ device, std::vector<int>& data) = 0;

    /** Sets auto-test parameters. Inverted: false when done, true when the call failed. */
    virtual bool SetSerialParamToAutoTest(_EnumSerialDevice_ device) = 0;

    /** Returns the baud rate of the RS-232 port, as the service's status word. */
    virtual int getRS232Baudrate() = 0;

    /** Returns the number of the RS-232 port, as the service's status word. */
    virtual int getRS232Port() = 0;

    /** Sets a port's device identifier. Inverted: false when done, true when the call failed. */
    virtual bool setSerialDeviceId(_EnumSerialDevice_ device, int id) = 0;

    /** Returns the device identifier of a port. */
    virtual int getSerialDeviceId(_EnumSerialDevice_ device) = 0;

    virtual ~ISerialCtrl() = default;
};

}  // namespace android
