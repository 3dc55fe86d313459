#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

namespace android {

/**
 * The anion (negative-ion) generator.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns -1.
 */
class TARN_EXPORT IAnionCtrl : public virtual RefBase {
  public:
    /** status is service-defined and passed on unchecked. Returns the service's status word. */
    virtual int setAnionStatus(int status) = 0;

    virtual ~IAnionCtrl() = default;
};

}  // namespace android
