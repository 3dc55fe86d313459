#pragma once

#include <utils/RefBase.h>

namespace android {

/**
 * Wake-up by Bluetooth Low Energy.
 *
 * Any thread may call; every call blocks for one exchange with the service. The result is false
 * when the command failed.
 */
class IBluetoothCtrl : public virtual RefBase {
  public:
    /** Tells whether Bluetooth Low Energy may wake the board up. */
    virtual bool isBleWakeup() = 0;

    /** Switches wake-up by Bluetooth Low Energy; true when the service says so. */
    virtual bool setBleWakeup(bool on) = 0;

    virtual ~IBluetoothCtrl() = default;
};

}  // namespace android
