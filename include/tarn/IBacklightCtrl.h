#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

namespace android {

/**
 * The panel's brightness and its limits.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns -1 or false. An int result is the service's status word: a getter's value or a setter's
 * outcome. All levels are on a service-defined scale and passed on unchecked.
 */
class TARN_EXPORT IBacklightCtrl : public virtual RefBase {
  public:
    /** Screen brightness; the backlight's real level is getScreenRealBrightness(). */
    virtual int getScreenBrightness() = 0;

    /** Sets the screen brightness; the library does not keep it within the limits. */
    virtual int setScreenBrightness(int brightness) = 0;

    /** Highest brightness that can be set. */
    virtual int getScreenMaxBrightness() = 0;

    /** Sets the highest brightness that can be set; see getMaxBrightnessSetEnable(). */
    virtual int setScreenMaxBrightness(int brightness) = 0;

    /** Lowest brightness that can be set. */
    virtual int getScreenMinBrightness() = 0;

    /** Sets the lowest brightness that can be set. */
    virtual int setScreenMinBrightness(int brightness) = 0;

    /** Level that the backlight really runs at. */
    virtual int getScreenRealBrightness() = 0;

    /** Sets the level that the backlight really runs at. */
    virtual int setScreenRealBrightness(int brightness) = 0;

    /** The customer's lower limit of the backlight; read-only. */
    virtual int getCustomerMinBacklight() = 0;

    /** The customer's upper limit of the backlight; read-only. */
    virtual int getCustomerMaxBacklight() = 0;

    /** The service's flag for whether the highest brightness may be set. */
    virtual bool getMaxBrightnessSetEnable() = 0;

    virtual ~IBacklightCtrl() = default;
};

}  // namespace android
