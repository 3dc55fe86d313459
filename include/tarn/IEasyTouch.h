#pragma once

#include <utils/RefBase.h>

namespace android {

/**
 * The easy-touch feature.
 *
 * Every call blocks for one exchange with the service; any thread may call. A command fails when
 * the service is missing, dead or answers -1; any other transport error reads as an answer of 0.
 */
class IEasyTouch : public virtual RefBase {
  public:
    /** Returns the service-defined value of the feature's log information, -1 on failure. */
    virtual int getEasyTouchLogInfo() = 0;

    virtual ~IEasyTouch() = default;
};

}  // namespace android
