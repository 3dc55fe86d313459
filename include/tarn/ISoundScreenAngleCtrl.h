#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

#include <cstdint>

namespace android {

/**
 * The two angles of the sound screen, in the order of the reply; meanings and unit are
 * service-defined.
 */
struct SoundScreenAngle {
    int32_t first = 0;
    int32_t second = 0;
};

/**
 * The angles of the sound screen.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * logs an error line.
 */
class TARN_EXPORT ISoundScreenAngleCtrl : public virtual RefBase {
  public:
    /**
     * Sets both angles, passed on unchecked. True when the status is not 0, so also when the call
     * failed; such a status logs an error line.
     */
    virtual bool setSoundScreenAngle(int first, int second) = 0;

    /** Returns both angles, or two zeros when the call failed. */
    virtual SoundScreenAngle getSoundScreenAngle() = 0;

    virtual ~ISoundScreenAngleCtrl() = default;
};

}  // namespace android
