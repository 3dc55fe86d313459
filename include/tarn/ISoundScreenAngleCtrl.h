#pragma once

#include <utils/RefBase.h>

#include <cstdint>

namespace android {

/** The two angles of the sound screen, in the service's unit. */
struct SoundScreenAngle {
    int32_t first = 0;
    int32_t second = 0;
};

/**
 * The angles of the sound screen.
 *
 * Every call blocks for one exchange with the service; any thread may call.
 */
class ISoundScreenAngleCtrl : public virtual RefBase {
  public:
    /**
     * Sets both angles. Mind the sense: true when the status is not 0, so also when the command
     * failed.
     */
    virtual bool setSoundScreenAngle(int first, int second) = 0;

    /** Returns both angles, zeros when the command failed. */
    virtual SoundScreenAngle getSoundScreenAngle() = 0;

    virtual ~ISoundScreenAngleCtrl() = default;
};

}  // namespace android
