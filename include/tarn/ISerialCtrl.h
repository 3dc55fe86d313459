#pragma once

#include <utils/RefBase.h>

#include <cstdint>
#include <vector>

namespace android {

/** A serial port; the values are the service's. */
enum _EnumSerialDevice_ : int32_t {};

/**
 * The board's serial ports.
 *
 * Every call blocks for one exchange with the service; any thread may call. A command fails when
 * the service is missing, dead or answers -1; any other transport error reads as an answer of 0,
 * a success. The setters differ in the sense of their results: mind each one's.
 */
class ISerialCtrl : public virtual RefBase {
  public:
    /** Switches a port on or off, with a service-defined parameter; true on success. */
    virtual bool SetSerialSwitch(_EnumSerialDevice_ device, bool on, int param) = 0;

    /** Sends values out of a port; data is only read. True on success. */
    virtual bool SendSerialData(_EnumSerialDevice_ device, std::vector<int>& data) = 0;

    /** Sets a port to its auto-test parameters; false on success, true on failure. */
    virtual bool SetSerialParamToAutoTest(_EnumSerialDevice_ device) = 0;

    /** Returns the baud rate of the RS-232 port; -1 on failure. */
    virtual int getRS232Baudrate() = 0;

    /** Returns the number of the RS-232 port; -1 on failure. */
    virtual int getRS232Port() = 0;

    /** Sets a port's device identifier; false on success, true on failure. */
    virtual bool setSerialDeviceId(_EnumSerialDevice_ device, int id) = 0;

    /** Returns a port's device identifier; -1 on failure. */
    virtual int getSerialDeviceId(_EnumSerialDevice_ device) = 0;

    virtual ~ISerialCtrl() = default;
};

}  // namespace android
