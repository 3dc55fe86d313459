#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

#include <cstdint>

namespace android {

/** What the voice assistant's LED shows; the values are service-defined. */
enum _EnumVaLedState_ : int32_t {};

/**
 * The RGB status LEDs.
 *
 * Calls block until the service has answered; any thread may call. Unless noted, a failed call (see
 * ITarnManager) returns -1 or false, an int result is the service's status word, and a bool result
 * is the service's answer. Arguments are passed on unchecked; states and LED numbers are
 * service-defined.
 */
class TARN_EXPORT IRGBLedCtrl : public virtual RefBase {
  public:
    /** Shows a power state of the board. */
    virtual int setPowerState(int state) = 0;

    /** Shows that an infrared signal came in. */
    virtual int setIRInputState() = 0;

    /** Shows a state of Bluetooth. */
    virtual int setBluetoothState(int state) = 0;

    /** Shows a state of the microphones. */
    virtual int setMicrophoneState(int state) = 0;

    /** Sets the enable state of the power LED; whether 0 is off is service-defined. */
    virtual int setPowerLedEnableState(int state) = 0;

    /** Shows a state of the over-the-air upgrade. */
    virtual int setLedOtaState(int state) = 0;

    /** Shows a state of the diagnosis. */
    virtual int setDiagnosisState(int state) = 0;

    /** Shows a state of standby. */
    virtual int setPowerStandbyState(int state) = 0;

    /** Switches one LED on; setLedOff() switches it off. */
    virtual bool setLedOn(int led) = 0;

    /** Switches one LED off. */
    virtual bool setLedOff(int led) = 0;

    /** Shows a state of the voice assistant. */
    virtual bool setVaLedState(_EnumVaLedState_ state) = 0;

    /** Returns what the voice assistant's LED shows; 0 when the call failed or told none. */
    virtual int getVaLedState() = 0;

    virtual ~IRGBLedCtrl() = default;
};

}  // namespace android
