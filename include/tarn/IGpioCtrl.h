#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

#include <cstdint>

namespace android {

/**
 * A pin's level or direction: 0 or 1, passed on unchecked; which direction is which is
 * service-defined.
 */
using TARN_BOOL = int32_t;

/**
 * The board's GPIO pins.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns -1. The setters return the service's status word. The getters return 0 and fill the
 * number that the pointer gives, which must not be null and is 0 after a failure. Pin numbers are
 * service-defined and passed on unchecked.
 */
class TARN_EXPORT IGpioCtrl : public virtual RefBase {
  public:
    /** Makes a pin an input. */
    virtual int setGpioDirInput(unsigned int gpio) = 0;

    /** Makes a pin an output. */
    virtual int setGpioDirOutput(unsigned int gpio) = 0;

    /** A pin's direction. */
    virtual int getGpioDirBit(unsigned int gpio, TARN_BOOL* dir) = 0;

    /** Sets a pin's output level. */
    virtual int writeGpioBit(unsigned int gpio, TARN_BOOL value) = 0;

    /** A pin's level; readGpioOutBit() reads the output level. */
    virtual int readGpioBit(unsigned int gpio, TARN_BOOL* value) = 0;

    /** A pin's output level. */
    virtual int readGpioOutBit(unsigned int gpio, TARN_BOOL* value) = 0;

    virtual ~IGpioCtrl() = default;
};

}  // namespace android
