#pragma once

#include <utils/RefBase.h>

namespace android {

/**
 * Picture adjustment of the VGA input: one value per item, both service-defined and not checked.
 *
 * Every call blocks for one exchange with the service; any thread may call. A result is the
 * service's status word, -1 when the command failed.
 */
class IVgaAdjust : public virtual RefBase {
  public:
    /** Sets the value of one adjustment item. */
    virtual int setvgaAdjustData(int item, int value) = 0;

    /** Returns the value of one adjustment item. */
    virtual int getvgaAdjustData(int item) = 0;

    virtual ~IVgaAdjust() = default;
};

}  // namespace android
