#include "modules/MicrophoneCtrl.h"

#include <binder/Parcel.h>

#include "modules/FirmwareRecords.h"
#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@MicCtrl"
#include "log/Log.h"

namespace android {

MicrophoneCtrl::MicrophoneCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int MicrophoneCtrl::getFwMicrophoneList(std::vector<EntityMicrophone>* list) {
    TLOGD("[%s] ++ \n", __func__);
    list->clear();
    const bool ret = mTarnMgr->exeCmdSet_Bool(CMD_MICROPHONE_GET_FW_MICROPHONE_LIST);
    if (ret) {
        // The exchange hands over no reply, so the list stays empty and gives callers no data.
        const Parcel reply;
        readList(reply, kDeviceFields, readDevice<EntityMicrophone>, list);
    } else {
        TLOGE("[%s]  fail, ret = %d \n", __func__, ret);
    }
    return 1;
}

bool MicrophoneCtrl::isBuildInMicEnabled(int microphone) {
    TLOGD("[%s] fwCameraType=%d \n", __func__, microphone);
    return mTarnMgr->exeCmdSet_Bool(CMD_MICROPHONE_IS_BUILD_IN_MIC_ENABLED, microphone);
}

bool MicrophoneCtrl::setBuildInMicEnabled(int microphone, bool enabled) {
    TLOGD("[%s] fwCameraType=%d; enabled=%d \n", __func__, microphone, enabled);
    return mTarnMgr->exeCmdSet_Bool(CMD_MICROPHONE_SET_BUILD_IN_MIC_ENABLED, microphone, enabled);
}

}  // namespace android
