#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

namespace android {

/**
 * The suspend and fake-standby states of the board.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns -1 or false; otherwise an int result is 0, and a bool result is the service's answer.
 */
class TARN_EXPORT ISuspendCtrl : public virtual RefBase {
  public:
    /** True when the board is in the suspend state. */
    virtual bool getSuspendStatus() = 0;

    /** Enters the suspend state with true, leaves it with false. */
    virtual int setSuspendStatus(bool on) = 0;

    /** True when the board is in fake standby. The name is spelt so. */
    virtual bool getFakeStandyStatus() = 0;

    /** Enters fake standby with true, leaves it with false. */
    virtual int setFakeStandyStatus(bool on) = 0;

    virtual ~ISuspendCtrl() = default;
};

}  // namespace android
