#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

#include <cstdint>
#include <string>
#include <vector>

namespace android {

/**
 * One sensor box's firmware. Fields in the order of the reply; meanings are service-defined. Texts
 * are UTF-8.
 */
struct EntitySensorBox {
    int32_t value0 = 0;
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
 * The external sensor boxes.
 *
 * Calls block until the service has answered; any thread may call.
 */
class TARN_EXPORT ISensorBoxCtrl : public virtual RefBase {
  public:
    /**
     * Asks for the boxes' firmware, but reads no list back: *out is empty afterwards, the result
     * always true. A failed call (see ITarnManager) logs an error line. out must not be null.
     */
    virtual bool getFwSensorBoxList(std::vector<EntitySensorBox>* out) = 0;

    virtual ~ISensorBoxCtrl() = default;
};

}  // namespace android
