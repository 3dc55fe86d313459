#pragma once

#include <utils/RefBase.h>

#include <cstdint>
#include <string>
#include <vector>

namespace android {

/** One microphone as the service describes it; the texts are UTF-8, the meanings its own. */
struct EntityMicrophone {
    int32_t value0 = 0;
    int32_t value1 = 0;
    int32_t value2 = 0;
    std::string text0;
    bool flag0 = false;
    std::string text1;
    bool flag1 = false;
    std::string text2;
    std::string text3;
    std::string text4;
    bool flag2 = false;
};

/**
 * The microphones of the board.
 *
 * Every call blocks for one exchange with the service; any thread may call. Microphone numbers
 * are service-defined and not checked. A bool result is false when the command failed.
 */
class IMicrophoneCtrl : public virtual RefBase {
  public:
    /**
     * Asks for the microphones and empties *list, which stays empty. Always returns 1; list must
     * not be null.
     */
    virtual int getFwMicrophoneList(std::vector<EntityMicrophone>* list) = 0;

    /** Tells whether a built-in microphone is enabled. */
    virtual bool isBuildInMicEnabled(int microphone) = 0;

    /** Enables or disables a built-in microphone; true when the service says so. */
    virtual bool setBuildInMicEnabled(int microphone, bool enabled) = 0;

    virtual ~IMicrophoneCtrl() = default;
};

}  // namespace android
