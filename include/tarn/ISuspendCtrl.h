#pragma once

#include <utils/RefBase.h>

namespace android {

/**
 * The suspend and fake-standby states of the board.
 *
 * Every call blocks for one exchange with the service; any thread may call.
 */
class ISuspendCtrl : public virtual RefBase {
  public:
    /** Tells whether the board is suspended; false when the command failed. */
    virtual bool getSuspendStatus() = 0;

    /** Enters or leaves the suspend state. Returns 0, or -1 when the command failed. */
    virtual int setSuspendStatus(bool on) = 0;

    /** Tells whether the board is in fake standby; false when the command failed. */
    virtual bool getFakeStandyStatus() = 0;

    /** Enters or leaves fake standby. Returns 0, or -1 when the command failed. */
    virtual int setFakeStandyStatus(bool on) = 0;

    virtual ~ISuspendCtrl() = default;
};

}  // namespace android
