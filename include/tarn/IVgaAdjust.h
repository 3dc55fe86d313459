#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

namespace android {

/**
 * Picture adjustment of the VGA input: one value for each item.
 *
 * Calls block until the service has answered; any thread may call. Every result is the service's
 * status word, -1 when the call failed (see ITarnManager). Arguments are passed on unchecked; items
 * and the scales of their values are service-defined.
 */
class TARN_EXPORT IVgaAdjust : public virtual RefBase {
  public:
    /** Sets the value of one item. */
    virtual int setvgaAdjustData(int item, int value) = 0;

    /** Returns the value of one item; a value of -1 can't be told from a failure. */
    virtual int getvgaAdjustData(int item) = 0;

    virtual ~IVgaAdjust() = default;
};

}  // namespace android
