#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

/**
 * The ultra-wideband remote control and the USB dongle that receives it.
 *
 * Calls block until the service has answered; any thread may call. When the call failed (see
 * ITarnManager), an int result is -1; a text is empty, and an error line is logged. An int result
 * is otherwise the service's status word. Arguments are passed on unchecked; scales, states and the
 * forms of texts are service-defined.
 */
class TARN_EXPORT IUwbCtrl : public virtual RefBase {
  public:
    /** Returns the dongle's version as text. */
    virtual String16 getUwbDongleVersion() = 0;

    /** Returns the dongle's model as text. */
    virtual String16 getUwbDongleModel() = 0;

    /** Deletes the pairing of the remote. */
    virtual int delUwbRcuPairInfo() = 0;

    /** Sets the dongle's Bluetooth scan switch; both numbers are service-defined. */
    virtual int setUwbDongleBtScanSwitch(int mode, int state) = 0;

    /** Returns the scan status of the dongle. */
    virtual int getUwbDongleScanStatus() = 0;

    /** Returns the connect status of the dongle. */
    virtual int getUwbDongleConnectStatus() = 0;

    /** Sets the signal-strength (RSSI) threshold of the remote; unit service-defined. */
    virtual int setUwbRcuRssiThreshold(int threshold) = 0;

    /** Returns the RSSI threshold of the remote; a threshold of -1 can't be told from a failure. */
    virtual int getUwbRcuRssiThreshold() = 0;

    /** Returns the remote's version as text. */
    virtual String16 getUwbRcuVersion() = 0;

    /** Returns the remote's model as text. */
    virtual String16 getUwbRcuModel() = 0;

    /** Returns the remote's MAC address as text. */
    virtual String16 getUwbRcuMacAddress() = 0;

    /** Returns the battery level of the remote; scale service-defined. */
    virtual int getUwbRcuBatteryLevel() = 0;

    /** Sets the sensitivity level of the remote; scale service-defined. */
    virtual int setUwbRcuSensitivenessLevel(int level) = 0;

    /** Returns the sensitivity level of the remote, on the same scale. */
    virtual int getUwbRcuSensitivenessLevel() = 0;

    /** Returns the switch status of the remote. */
    virtual int getUwbRcuSwitchStatus() = 0;

    /** Returns the charge status of the remote; its battery level has a method of its own. */
    virtual int getUwbRcuChargeStatus() = 0;

    /** Returns the dongle's serial number as text. */
    virtual String16 getUwbDongleSn() = 0;

    /** Returns the remote's serial number as text. */
    virtual String16 getUwbRcuSn() = 0;

    virtual ~IUwbCtrl() = default;
};

}  // namespace android
