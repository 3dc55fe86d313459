#include "modules/FwTouchCtrl.h"

#include "modules/FirmwareRecords.h"
#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@FwTouchCtrl"
#define TARN_LOG_PINNED
#include "log/Log.h"

namespace android {

namespace {

constexpr int kDriverFields = 6;
constexpr int kDataFields = 25;

/** The low 16 bits of the next integer. */
int16_t readShort(const Parcel& reply) {
    return static_cast<int16_t>(reply.readInt32());
}

EntityFwTouchDriver readDriver(const Parcel& reply) {
    EntityFwTouchDriver driver;
    driver.value0 = reply.readInt32();
    driver.value1 = reply.readInt32();
    driver.value2 = reply.readInt32();
    driver.text0 = readUtf8(reply);
    driver.flag0 = reply.readBool();
    driver.text1 = readUtf8(reply);
    return driver;
}

TouchFwDataList readData(const Parcel& reply) {
    TouchFwDataList data;
    data.short0 = readShort(reply);
    data.short1 = readShort(reply);
    data.touch = readDevice<EntityFwTouch>(reply);
    data.text0 = readUtf8(reply);
    data.short2 = readShort(reply);
    data.short3 = readShort(reply);
    data.short4 = readShort(reply);
    data.driver = readDriver(reply);
    data.text1 = readUtf8(reply);
    data.short5 = readShort(reply);
    return data;
}

/** Unlike elsewhere, every result of the exchange but 0 is a failure. */
template <typename Record>
bool askForList(const sp<TarnManager>& manager, int cmd, int fields,
                Record (*readRecord)(const Parcel&), std::vector<Record>* out) {
    Parcel reply;
    out->clear();
    if (manager->exeCmdSet_Parcel(cmd, &reply) != 0) return false;
    readList(reply, fields, readRecord, out);
    return true;
}

}  // namespace

FwTouchCtrl::FwTouchCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {
    TLOGD_AT(25, "FwTouchCtrl::FwTouchCtrl");
}

bool FwTouchCtrl::getFwTouchList(std::vector<EntityFwTouch>* out) {
    TLOGD_AT(30, "[%s]\n", __func__);
    return askForList(mTarnMgr, CMD_FW_TOUCH_GET_LIST, kDeviceFields, readDevice<EntityFwTouch>,
                      out);
}

bool FwTouchCtrl::getFwTouchDriverInfoList(std::vector<EntityFwTouchDriver>* out) {
    TLOGD_AT(65, "[%s]\n", __func__);
    return askForList(mTarnMgr, CMD_FW_TOUCH_GET_DRIVER_LIST, kDriverFields, readDriver, out);
}

bool FwTouchCtrl::getTouchFwDataList(std::vector<TouchFwDataList>* out) {
    TLOGD_AT(96, "[%s]\n", __func__);
    return askForList(mTarnMgr, CMD_FW_TOUCH_GET_DATA_LIST, kDataFields, readData, out);
}

}  // namespace android
