#include "modules/SmartPenModeCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@SmartPenModeCtrl"
#define TARN_LOG_PINNED
#include "log/Log.h"

namespace android {

SmartPenModeCtrl::SmartPenModeCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {
    TLOGD_AT(29, "SmartPenModeCtrl::SmartPenModeCtrl");
}

std::vector<_EnumSmartPenMode> SmartPenModeCtrl::getSupportSmartPenModeList() {
    std::vector<_EnumSmartPenMode> modes;
    Parcel reply;
    mTarnMgr->exeCmdSet_Parcel(CMD_SMART_PEN_MODE_GET_SUPPORTED, &reply);
    const int32_t count = reply.readInt32();
    const int32_t most = recordsToRead(count, 1);
    for (int32_t i = 0; i < most; i++) {
        const int32_t mode = reply.readInt32();
        TLOGD_AT(43, "SmartPenModeCtrl::getSupportSmartPenModeList list_cnt:%d, val:%d", count,
                 mode);
        modes.push_back(static_cast<_EnumSmartPenMode>(mode));
    }
    return modes;
}

bool SmartPenModeCtrl::setSmartPenMode(_EnumSmartPenMode mode) {
    TLOGD_AT(52, "SmartPenModeCtrl::setSmartPenMode");
    return mTarnMgr->exeCmdSet_Bool(CMD_SMART_PEN_MODE_SET_MODE, mode);
}

_EnumSmartPenMode SmartPenModeCtrl::getSmartPenMode() {
    Parcel reply;
    TLOGD_AT(61, "SmartPenModeCtrl::getSmartPenMode");
    mTarnMgr->exeCmdSet_Parcel(CMD_SMART_PEN_MODE_GET_MODE, &reply);
    // A failure shows in the reply's size, never in the status.
    if (reply.dataSize() == 0) {
        TLOGD_AT(66, "SmartPenModeCtrl::getSmartPenMode failed");
        return SMART_PEN_MODE_FALLBACK;
    }
    return static_cast<_EnumSmartPenMode>(reply.readInt32());
}

}  // namespace android
