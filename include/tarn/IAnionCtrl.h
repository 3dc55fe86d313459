#pragma once

#include <utils/RefBase.h>

namespace android {

/**
 * The anion (negative-ion) generator.
 *
 * Any thread may call; every call blocks for one exchange with the service.
 */
class IAnionCtrl : public virtual RefBase {
  public:
    /**
     * Switches the anion generator; status is service-defined and not checked. Returns the
     * service's status word, -1 when the command failed.
     */
    virtual int setAnionStatus(int status) = 0;

    virtual ~IAnionCtrl() = default;
};

}  // namespace android
