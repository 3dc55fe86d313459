#pragma once

#include <utils/RefBase.h>

#include <cstdint>

namespace android {

/** A pin's level or direction: 0 or 1. */
using TARN_BOOL = int32_t;

/**
 * The board's GPIO pins.
 *
 * Every call blocks for one exchange with the service; any thread may call. Pin numbers are
 * service-defined and not checked. The out-parameters must not be null.
 */
class IGpioCtrl : public virtual RefBase {
  public:
    /** Makes a pin an input. Returns the service's status, -1 when the command failed. */
    virtual int setGpioDirInput(unsigned int gpio) = 0;

    /** Makes a pin an output. Returns the service's status, -1 when the command failed. */
    virtual int setGpioDirOutput(unsigned int gpio) = 0;

    /** Reads a pin's direction. Returns 0; -1 when the command failed, and *dir is 0 then. */
    virtual int getGpioDirBit(unsigned int gpio, TARN_BOOL* dir) = 0;

    /** Sets a pin's output level. Returns the service's status, -1 when the command failed. */
    virtual int writeGpioBit(unsigned int gpio, TARN_BOOL value) = 0;

    /** Reads a pin's level. Returns 0; -1 when the command failed, and *value is 0 then. */
    virtual int readGpioBit(unsigned int gpio, TARN_BOOL* value) = 0;

    /** Reads a pin's output level. Returns 0; -1 when the command failed, and *value is 0 then. */
    virtual int readGpioOutBit(unsigned int gpio, TARN_BOOL* value) = 0;

    virtual ~IGpioCtrl() = default;
};

}  // namespace android
