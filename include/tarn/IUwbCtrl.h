#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

/**
 * The ultra-wideband remote control and the dongle that receives it.
 *
 * Any thread may call; every call blocks for one exchange with the service. Arguments are not
 * checked: their scales and those of the results are the service's. An int result is the service's
 * status word, -1 when the command failed.
 */
class IUwbCtrl : public virtual RefBase {
  public:
    /** Returns the dongle's version; empty when the command failed. */
    virtual String16 getUwbDongleVersion() = 0;

    /** Returns the dongle's model; empty when the command failed. */
    virtual String16 getUwbDongleModel() = 0;

    /** Deletes the pairing with the remote. */
    virtual int delUwbRcuPairInfo() = 0;

    /** Sets the dongle's Bluetooth scan switch; both numbers are service-defined. */
    virtual int setUwbDongleBtScanSwitch(int mode, int state) = 0;

    /** Returns the dongle's scan status. */
    virtual int getUwbDongleScanStatus() = 0;

    /** Returns the dongle's connect status. */
    virtual int getUwbDongleConnectStatus() = 0;

    /** Sets the RSSI threshold of the remote. */
    virtual int setUwbRcuRssiThreshold(int threshold) = 0;

    /** Returns the RSSI threshold of the remote. */
    virtual int getUwbRcuRssiThreshold() = 0;

    /** Returns the remote's version; empty when the command failed. */
    virtual String16 getUwbRcuVersion() = 0;

    /** Returns the remote's model; empty when the command failed. */
    virtual String16 getUwbRcuModel() = 0;

    /** Returns the remote's MAC address; empty when the command failed. */
    virtual String16 getUwbRcuMacAddress() = 0;

    /** Returns the remote's battery level. */
    virtual int getUwbRcuBatteryLevel() = 0;

    /** Sets the sensitivity level of the remote. */
    virtual int setUwbRcuSensitivenessLevel(int level) = 0;

    /** Returns the sensitivity level of the remote. */
    virtual int getUwbRcuSensitivenessLevel() = 0;

    /** Returns the remote's switch status. */
    virtual int getUwbRcuSwitchStatus() = 0;

    /** Returns the remote's charge status. */
    virtual int getUwbRcuChargeStatus() = 0;

    /** Returns the dongle's serial number; empty when the command failed. */
    virtual String16 getUwbDongleSn() = 0;

    /** Returns the remote's serial number; empty when the command failed. */
    virtual String16 getUwbRcuSn() = 0;

    virtual ~IUwbCtrl() = default;
};

}  // namespace android
