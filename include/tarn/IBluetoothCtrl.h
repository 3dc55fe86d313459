#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

namespace android {

/**
 * Wake-up by Bluetooth Low Energy.
 *
 * Calls block until the service has answered; any thread may call. A bool result is the service's
 * answer, or false when the call failed (see ITarnManager).
 */
class TARN_EXPORT IBluetoothCtrl : public virtual RefBase {
  public:
    /** True when Bluetooth Low Energy may wake the board up. */
    virtual bool isBleWakeup() = 0;

    /** Allows (true) or forbids (false) the wake-up. */
    virtual bool setBleWakeup(bool on) = 0;

    virtual ~IBluetoothCtrl() = default;
};

}  // namespace android
