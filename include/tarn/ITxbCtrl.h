#pragma once

#include <utils/RefBase.h>

#include <cstdint>

namespace android {

/** A key of the TXB board; the values are the service's. */
enum _EnumTxbKeyType_ : int32_t {};

/** A material that the TXB board tells apart; the values are the service's. */
enum _EnumTxbMaterialType_ : int32_t {};

/**
 * The TXB pen and sensor board.
 *
 * Every call blocks for one exchange with the service; any thread may call. A command fails when
 * the service is missing, dead or answers -1; any other transport error reads as an answer of 0.
 * The send methods are false only when the service answers 0: a failed command, -1, reads as true.
 * An array with count below 1 or without values is not sent and counts as answered with 0.
 */
class ITxbCtrl : public virtual RefBase {
  public:
    /** Sends a key code. */
    virtual bool sendTxbKeycode(_EnumTxbKeyType_ key) = 0;

    /** Sends a type of material. */
    virtual bool sendTxbMaterial(_EnumTxbMaterialType_ material) = 0;

    /** Sends signal amplitudes, count of them; values is only read. */
    virtual bool sendTxbSignalAmplitude(int* values, int count) = 0;

    /** Returns the mute state of the sensors, -1 on failure. */
    virtual int getTxbSensorMuteState() = 0;

    /** Mutes or unmutes a sensor; true when the service says so, false on failure. */
    virtual bool setTxbSensorMuteState(int sensor, bool mute) = 0;

    /** Sends coordinates of the pen. */
    virtual bool sendTxbPenCoord(int x, int y) = 0;

    /**
     * Reads the self-test states of the sensors.
     *
     * @param out receives them; must not be null and must hold as many ints as the service sends,
     *            which nothing bounds.
     * @return their number; -1 on failure, and out stays as it was.
     */
    virtual int getTxbSensorSelfTestState(int* out) = 0;

    /** Sets self-test states, count of them; true exactly when the service answers 0. */
    virtual bool setTxbSensorSelfTestState(int* values, int count) = 0;

    virtual ~ITxbCtrl() = default;
};

}  // namespace android
