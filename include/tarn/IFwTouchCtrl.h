#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

#include <cstdint>
#include <string>
#include <vector>

namespace android {

/**
 * One touch device. Fields in the order of the reply; meanings are service-defined. Texts are
 * UTF-8.
 */
struct EntityFwTouch {
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
 * One driver of a touch device. Fields in the order of the reply; meanings are service-defined.
 * Texts are UTF-8.
 */
struct EntityFwTouchDriver {
    int32_t value0 = 0;
    int32_t value1 = 0;
    int32_t value2 = 0;
    std::string text0;
    bool flag0 = false;
    std::string text1;
};

/**
 * A touch device with its driver. Fields in the order of the reply; meanings are service-defined.
 * Texts are UTF-8. The shorts are the low 16 bits of the service's 32-bit numbers.
 */
struct TouchFwDataList {
    int16_t short0 = 0;
    int16_t short1 = 0;
    EntityFwTouch touch;
    std::string text0;
    int16_t short2 = 0;
    int32_t reserved0 = 0;  // not on the wire, stays 0
    int16_t short3 = 0;
    int16_t short4 = 0;
    EntityFwTouchDriver driver;
    std::string text1;
    int16_t short5 = 0;
};

/**
 * Which touch frames the service knows, with their drivers and firmware. Read-only.
 *
 * Calls block until the service has answered; any thread may call. Each method replaces the
 * contents of *out and returns true; when the call failed (see ITarnManager) *out is empty and the
 * result false. out must not be null.
 */
class TARN_EXPORT IFwTouchCtrl : public virtual RefBase {
  public:
    /** Lists the touch devices. */
    virtual bool getFwTouchList(std::vector<EntityFwTouch>* out) = 0;

    /** Lists the drivers of the touch devices. */
    virtual bool getFwTouchDriverInfoList(std::vector<EntityFwTouchDriver>* out) = 0;

    /** Lists the touch devices together with their drivers. */
    virtual bool getTouchFwDataList(std::vector<TouchFwDataList>* out) = 0;

    virtual ~IFwTouchCtrl() = default;
};

}  // namespace android
