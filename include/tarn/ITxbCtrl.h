#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

#include <cstdint>

namespace android {

/** A key of the TXB board; the values are service-defined. */
enum _EnumTxbKeyType_ : int32_t {};

/** A material that the TXB board tells apart; the values are service-defined. */
enum _EnumTxbMaterialType_ : int32_t {};

/**
 * The TXB pen and sensor board.
 *
 * Calls block until the service has answered; any thread may call. The send methods are true when
 * the status is not 0, so also when the call failed (see ITarnManager). An array with count below 1
 * or null values is not sent and counts as a status of 0. Arguments are passed on unchecked;
 * numbers, units and states are service-defined.
 */
class TARN_EXPORT ITxbCtrl : public virtual RefBase {
  public:
    /** Sends a key. */
    virtual bool sendTxbKeycode(_EnumTxbKeyType_ key) = 0;

    /** Sends a kind of material. */
    virtual bool sendTxbMaterial(_EnumTxbMaterialType_ material) = 0;

    /** Sends signal amplitudes, count of them; values is only read. */
    virtual bool sendTxbSignalAmplitude(int* values, int count) = 0;

    /** Returns the mute state of the sensors, -1 when the call failed. */
    virtual int getTxbSensorMuteState() = 0;

    /** Mutes or unmutes one sensor. Returns the service's answer, false when the call failed. */
    virtual bool setTxbSensorMuteState(int sensor, bool mute) = 0;

    /** Sends the coordinates of the pen. */
    virtual bool sendTxbPenCoord(int x, int y) = 0;

    /**
     * Reads the self-test states of the sensors.
     *
     * @param out receives them; must not be null and must hold as many ints as the service sends,
     *            which nothing bounds.
     * @return their number; -1 when the call failed, which leaves out as it was.
     */
    virtual int getTxbSensorSelfTestState(int* out) = 0;

    /** Sets self-test states, count of them; values is only read. True when the status is 0. */
    virtual bool setTxbSensorSelfTestState(int* values, int count) = 0;

    virtual ~ITxbCtrl() = default;
};

}  // namespace android
