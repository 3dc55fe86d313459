#pragma once

#include <utils/RefBase.h>

namespace android {

/** The easy-touch feature. Any thread may call. */
class IEasyTouch : public virtual RefBase {
  public:
    /** Returns the service-defined value of the feature's log information, -1 on failure. */
    virtual int getEasyTouchLogInfo() = 0;

    virtual ~IEasyTouch() = default;
};

}  // namespace android
