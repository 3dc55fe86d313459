#pragma once

#include <utils/RefBase.h>

#include <cstdint>
#include <string>
#include <vector>

namespace android {

/** One I/O box's firmware; the meaning of its fields is the service's. Texts are UTF-8. */
struct EntityFwIoBox {
    int32_t value0 = 0;
    int32_t value1 = 0;
    int32_t value2 = 0;
    int32_t value3 = 0;
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
 * The external I/O extension boxes. Every call blocks for one exchange with the service; any
 * thread may call.
 */
class IIoBoxCtrl : public virtual RefBase {
  public:
    /** Returns a box's connection state; 2 when it is unknown, as on failure. */
    virtual int getConnectStatus(int box) = 0;

    /**
     * Asks for the boxes' firmware and empties *out, which stays empty. Always true; out must not
     * be null.
     */
    virtual bool getFwIoBoxList(std::vector<EntityFwIoBox>* out) = 0;

    virtual ~IIoBoxCtrl() = default;
};

}  // namespace android
