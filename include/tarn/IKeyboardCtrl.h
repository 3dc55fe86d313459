#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

/**
 * Which keyboards are there.
 *
 * Calls block until the service has answered; any thread may call. What a failed call (see
 * ITarnManager) returns differs between the two methods. Arguments are passed on unchecked.
 */
class TARN_EXPORT IKeyboardCtrl : public virtual RefBase {
  public:
    /** True when a keyboard of that name is present; false also when the call failed. */
    virtual bool getKeyboardByName(String16 name) = 0;

    /**
     * True when the status is not 0, so a failed call reads as a present keyboard. Both identifiers
     * are service-defined.
     */
    virtual bool getKeyboardByID(int id0, int id1) = 0;

    virtual ~IKeyboardCtrl() = default;
};

}  // namespace android
