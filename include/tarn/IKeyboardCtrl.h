#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

/**
 * Asks the service which keyboards are there.
 *
 * Every call blocks for one exchange with the service; any thread may call. A command fails when
 * the service is missing, dead or answers -1; any other transport error reads as an answer of 0.
 */
class IKeyboardCtrl : public virtual RefBase {
  public:
    /** Tells whether the keyboard of that name is present; false on failure. */
    virtual bool getKeyboardByName(String16 name) = 0;

    /**
     * Tells whether the keyboard with that pair of service-defined identifiers is present. False
     * only when the service answers 0: a failed command reads as present.
     */
    virtual bool getKeyboardByID(int id0, int id1) = 0;

    virtual ~IKeyboardCtrl() = default;
};

}  // namespace android
