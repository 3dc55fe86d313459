#pragma once

#include <utils/RefBase.h>

#include <cstdint>
#include <string>
#include <vector>

namespace android {

/** One sensor box's firmware; the meaning of its fields is the service's. Texts are UTF-8. */
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

/** The external sensor boxes. */
class ISensorBoxCtrl : public virtual RefBase {
  public:
    /**
     * Asks for the boxes' firmware and empties *out, which stays empty. Always true; out must not
     * be null. Blocks for one exchange with the service; any thread may call.
     */
    virtual bool getFwSensorBoxList(std::vector<EntitySensorBox>* out) = 0;

    virtual ~ISensorBoxCtrl() = default;
};

}  // namespace android
