#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

namespace android {

/**
 * The easy-touch feature.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns -1.
 */
class TARN_EXPORT IEasyTouch : public virtual RefBase {
  public:
    /** The feature's log information: one service-defined number, the service's status word. */
    virtual int getEasyTouchLogInfo() = 0;

    virtual ~IEasyTouch() = default;
};

}  // namespace android
