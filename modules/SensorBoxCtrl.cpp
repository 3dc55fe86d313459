#include "modules/SensorBoxCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@SensorBoxCtrl"
#define TARN_LOG_PINNED
#include "log/Log.h"

namespace android {

SensorBoxCtrl::SensorBoxCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

bool SensorBoxCtrl::getFwSensorBoxList(std::vector<EntitySensorBox>* out) {
    TLOGD_AT(25, "[%s] ++ \n", __func__);
    out->clear();
    const bool ok = mTarnMgr->exeCmdSet_Bool(CMD_SENSOR_BOX_GET_FW_LIST);
    if (ok) {
        // The exchange hands over no reply, so the list stays empty and gives callers no data.
        const Parcel reply;
        readList(reply, kSensorBoxFields, readSensorBox, out);
    } else {
        TLOGE_AT(50, "[%s]  fail, ret = %d \n", __func__, ok);
    }
    return true;
}

}  // namespace android
