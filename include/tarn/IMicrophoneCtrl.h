#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

#include <cstdint>
#include <string>
#include <vector>

namespace android {

/**
 * One microphone. Fields in the order of the reply; meanings are service-defined. Texts are UTF-8.
 */
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
 * The built-in microphones.
 *
 * Calls block until the service has answered; any thread may call. A bool result is the service's
 * answer, or false when the call failed (see ITarnManager). Microphone numbers are service-defined
 * and passed on unchecked.
 */
class TARN_EXPORT IMicrophoneCtrl : public virtual RefBase {
  public:
    /**
     * Gives no data: sends its command, empties *list, reads no records and always returns 1. list
     * must not be null. An answer of false, or a failed call, logs an error line.
     */
    virtual int getFwMicrophoneList(std::vector<EntityMicrophone>* list) = 0;

    /** True when that built-in microphone is enabled. */
    virtual bool isBuildInMicEnabled(int microphone) = 0;

    /** Enables or disables a built-in microphone. */
    virtual bool setBuildInMicEnabled(int microphone, bool enabled) = 0;

    virtual ~IMicrophoneCtrl() = default;
};

}  // namespace android
