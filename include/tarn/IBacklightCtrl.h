#pragma once

#include <utils/RefBase.h>

namespace android {

/**
 * The panel's brightness and its limits; all levels are on the service's scale and are not checked.
 *
 * Every call blocks for one exchange with the service; any thread may call. An int result is the
 * service's status word, -1 when the command failed; a bool result is false when it failed.
 */
class IBacklightCtrl : public virtual RefBase {
  public:
    /** Returns the screen brightness. */
    virtual int getScreenBrightness() = 0;

    /** Sets the screen brightness. */
    virtual int setScreenBrightness(int brightness) = 0;

    /** Returns the highest brightness that can be set. */
    virtual int getScreenMaxBrightness() = 0;

    /** Sets the highest brightness that can be set. */
    virtual int setScreenMaxBrightness(int brightness) = 0;

    /** Returns the lowest brightness that can be set. */
    virtual int getScreenMinBrightness() = 0;

    /** Sets the lowest brightness that can be set. */
    virtual int setScreenMinBrightness(int brightness) = 0;

    /** Returns the level that the backlight really runs at. */
    virtual int getScreenRealBrightness() = 0;

    /** Sets the level that the backlight really runs at. */
    virtual int setScreenRealBrightness(int brightness) = 0;

    /** Returns the customer's lower limit of the backlight. */
    virtual int getCustomerMinBacklight() = 0;

    /** Returns the customer's upper limit of the backlight. */
    virtual int getCustomerMaxBacklight() = 0;

    /** Tells whether the highest brightness may be set. */
    virtual bool getMaxBrightnessSetEnable() = 0;

    virtual ~IBacklightCtrl() = default;
};

}  // namespace android
