#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

namespace android {

/**
 * The super-root debug state of the board.
 *
 * Calls block until the service has answered; any thread may call. A bool result is the service's
 * answer, or false when the call failed (see ITarnManager).
 */
class TARN_EXPORT IDebugCtrl : public virtual RefBase {
  public:
    /** True when super-root is on. */
    virtual bool getSuperRootState() = 0;

    /**
     * Passes a state text on unchecked; its meaning is service-defined. UTF-8, must not be null.
     */
    virtual bool setSuperRootState(const char* state) = 0;

    virtual ~IDebugCtrl() = default;
};

}  // namespace android
