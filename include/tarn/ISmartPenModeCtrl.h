#pragma once

#include <utils/RefBase.h>

#include <cstdint>
#include <vector>

namespace android {

/** A mode of the smart pen; all values but the fallback are the service's. */
enum _EnumSmartPenMode : int32_t {
    SMART_PEN_MODE_FALLBACK = 5,
};

/**
 * The smart pen's mode.
 *
 * Every call blocks for one exchange with the service; any thread may call.
 */
class ISmartPenModeCtrl : public virtual RefBase {
  public:
    /** Returns the modes that the board supports; none when the command failed. */
    virtual std::vector<_EnumSmartPenMode> getSupportSmartPenModeList() = 0;

    /** Sets the mode; true when the service says so, false on failure. */
    virtual bool setSmartPenMode(_EnumSmartPenMode mode) = 0;

    /** Returns the mode; SMART_PEN_MODE_FALLBACK when the service answers none. */
    virtual _EnumSmartPenMode getSmartPenMode() = 0;

    virtual ~ISmartPenModeCtrl() = default;
};

}  // namespace android
