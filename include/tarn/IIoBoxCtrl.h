#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

#include <cstdint>
#include <string>
#include <vector>

namespace android {

/**
 * One I/O box's firmware. Fields in the order of the reply; meanings are service-defined. Texts are
 * UTF-8.
 */
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
 * The external I/O extension boxes.
 *
 * Calls block until the service has answered; any thread may call. What a failed call (see
 * ITarnManager) returns is said at each method; it also logs an error line.
 */
class TARN_EXPORT IIoBoxCtrl : public virtual RefBase {
  public:
    /**
     * A box's connection state: 2 is unknown, also when the call failed; the rest is
     * service-defined, as is box.
     */
    virtual int getConnectStatus(int box) = 0;

    /**
     * Gives no data: sends its command, empties *out, reads no records and always returns true. out
     * must not be null. An answer of false logs an error line as well.
     */
    virtual bool getFwIoBoxList(std::vector<EntityFwIoBox>* out) = 0;

    virtual ~IIoBoxCtrl() = default;
};

}  // namespace android
