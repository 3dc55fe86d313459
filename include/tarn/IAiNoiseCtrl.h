#pragma once

#include <utils/RefBase.h>

namespace android {

/**
 * The level of the AI noise suppression, on the service's scale.
 *
 * Every call blocks for one exchange with the service; any thread may call.
 */
class IAiNoiseCtrl : public virtual RefBase {
  public:
    /** Sets the level. Mind the sense: false when the command was done, true when it failed. */
    virtual bool setAiNoise(float level) = 0;

    /** Returns the level, 0 when the command failed. */
    virtual float getAiNoise() = 0;

    virtual ~IAiNoiseCtrl() = default;
};

}  // namespace android
