#pragma once

#include <utils/RefBase.h>

#include <cstdint>

namespace android {

/** What the voice assistant's LED shows; the values are the service's. */
enum _EnumVaLedState_ : int32_t {};

/**
 * The RGB status LEDs.
 *
 * Every call blocks for one exchange with the service; any thread may call. State and LED numbers
 * are service-defined and not checked. Unless a method says otherwise, an int result is the
 * service's status word, -1 when the command failed, and a bool result is false when it failed.
 */
class IRGBLedCtrl : public virtual RefBase {
  public:
    /** Shows a power state. */
    virtual int setPowerState(int state) = 0;

    /** Shows that an infrared signal came in. */
    virtual int setIRInputState() = 0;

    /** Shows a Bluetooth state. */
    virtual int setBluetoothState(int state) = 0;

    /** Shows a microphone state. */
    virtual int setMicrophoneState(int state) = 0;

    /** Sets the enable state of the power LED. */
    virtual int setPowerLedEnableState(int state) = 0;

    /** Shows the state of an over-the-air update. */
    virtual int setLedOtaState(int state) = 0;

    /** Shows the state of a diagnosis. */
    virtual int setDiagnosisState(int state) = 0;

    /** Shows a standby state. */
    virtual int setPowerStandbyState(int state) = 0;

    /** Switches one LED on; true when the service says so. */
    virtual bool setLedOn(int led) = 0;

    /** Switches one LED off; true when the service says so. */
    virtual bool setLedOff(int led) = 0;

    /** Shows a state of the voice assistant; true when the service says so. */
    virtual bool setVaLedState(_EnumVaLedState_ state) = 0;

    /** Returns the state of the voice assistant's LED, 0 when the reply carries none. */
    virtual int getVaLedState() = 0;

    virtual ~IRGBLedCtrl() = default;
};

}  // namespace android
