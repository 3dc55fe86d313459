#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

namespace android {

/**
 * The level of the AI noise suppression, on a service-defined scale.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns what its method says and logs an error line.
 */
class TARN_EXPORT IAiNoiseCtrl : public virtual RefBase {
  public:
    /** Passes level on unchecked. Inverted: false when done, true when the call failed. */
    virtual bool setAiNoise(float level) = 0;

    /** The level, or 0 when the call failed, which can't be told from a level of 0. */
    virtual float getAiNoise() = 0;

    virtual ~IAiNoiseCtrl() = default;
};

}  // namespace android
