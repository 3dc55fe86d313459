#pragma once

#include <utils/RefBase.h>

namespace android {

/**
 * The super-root debug state of the board.
 *
 * Every call blocks for one exchange with the service; any thread may call.
 */
class IDebugCtrl : public virtual RefBase {
  public:
    /** Tells whether super-root is on; false when the command failed. */
    virtual bool getSuperRootState() = 0;

    /**
     * Hands a state text to the service, which defines its meaning.
     *
     * @param state UTF-8, not null.
     * @return what the service answers; false when the command failed.
     */
    virtual bool setSuperRootState(const char* state) = 0;

    virtual ~IDebugCtrl() = default;
};

}  // namespace android
