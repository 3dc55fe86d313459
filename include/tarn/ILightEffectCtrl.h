#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

#include <cstdint>

namespace android {

/** A device with light effects; values are service-defined. */
enum _EnumLightDeviceType : int32_t {};

/** A light effect; values are service-defined. */
enum _EnumLightEffectMode : int32_t {};

/**
 * The light effects of the board's light devices.
 *
 * Calls block until the service has answered; any thread may call. A bool result is the service's
 * answer, or false when the call failed (see ITarnManager).
 */
class TARN_EXPORT ILightEffectCtrl : public virtual RefBase {
  public:
    /** Gives one device an effect; both are passed on unchecked. */
    virtual bool setLightEffectMode(_EnumLightDeviceType device, _EnumLightEffectMode mode) = 0;

    virtual ~ILightEffectCtrl() = default;
};

}  // namespace android
