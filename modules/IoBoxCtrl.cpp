#include "modules/IoBoxCtrl.h"

#include "modules/FirmwareRecords.h"
#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@IoBoxCtrl"
#define TARN_LOG_PINNED
#include "log/Log.h"

namespace android {

namespace {

constexpr int kUnknownConnectStatus = 2;

}  // namespace

IoBoxCtrl::IoBoxCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int IoBoxCtrl::getConnectStatus(int box) {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_IOBOX_GET_CONNECT_STATUS, box, &reply) != 0) {
        TLOGE_AT(65, "exeCmdSet_Parcel:CMD_IOBOX_GET_CONNECT_STATUS error!\n");
        return kUnknownConnectStatus;
    }
    return reply.readInt32();
}

bool IoBoxCtrl::getFwIoBoxList(std::vector<EntityFwIoBox>* out) {
    TLOGD_AT(25, "[%s] ++ \n", __func__);
    out->clear();
    const bool ok = mTarnMgr->exeCmdSet_Bool(CMD_IOBOX_GET_FW_LIST);
    if (ok) {
        // The exchange hands over no reply, so the list stays empty and gives callers no data.
        const Parcel reply;
        readList(reply, kFirmwareFields, readFirmware<EntityFwIoBox>, out);
    } else {
        TLOGE_AT(52, "[%s]  fail, ret = %d \n", __func__, ok);
    }
    return true;
}

}  // namespace android
