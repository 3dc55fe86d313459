#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

#include <cstdint>
#include <vector>

namespace android {

/** A mode of the smart pen; the values are service-defined, but for the fallback. */
enum _EnumSmartPenMode : int32_t {
    SMART_PEN_MODE_FALLBACK = 5,  // what getSmartPenMode() returns when it read none
};

/**
 * The smart pen's mode.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns an empty list, false or the fallback.
 */
class TARN_EXPORT ISmartPenModeCtrl : public virtual RefBase {
  public:
    /** Returns the modes that the board supports, in the service's order. */
    virtual std::vector<_EnumSmartPenMode> getSupportSmartPenModeList() = 0;

    /** Sets the mode, not checked; returns the service's answer. */
    virtual bool setSmartPenMode(_EnumSmartPenMode mode) = 0;

    /** Returns the mode; the fallback when the call failed or its answer holds none. */
    virtual _EnumSmartPenMode getSmartPenMode() = 0;

    virtual ~ISmartPenModeCtrl() = default;
};

}  // namespace android
