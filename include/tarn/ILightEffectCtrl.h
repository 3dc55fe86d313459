#pragma once

#include <utils/RefBase.h>

#include <cstdint>

namespace android {

/** A device with light effects; the values are the service's. */
enum _EnumLightDeviceType : int32_t {};

/** A light effect; the values are the service's. */
enum _EnumLightEffectMode : int32_t {};

/**
 * The light effects of the board's light devices.
 *
 * Every call blocks for one exchange with the service; any thread may call.
 */
class ILightEffectCtrl : public virtual RefBase {
  public:
    /** Sets the effect of one device; true when the service says so, false when it failed. */
    virtual bool setLightEffectMode(_EnumLightDeviceType device, _EnumLightEffectMode mode) = 0;

    virtual ~ILightEffectCtrl() = default;
};

}  // namespace android
