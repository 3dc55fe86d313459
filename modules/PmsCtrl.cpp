#include "modules/PmsCtrl.h"

#include "protocol/Commands.h"

namespace android {

PmsCtrl::PmsCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int PmsCtrl::getWakeupSrc() {
    return mTarnMgr->exeCmdSet_Int(CMD_PMS_GET_WAKEUP_SRC);
}

int PmsCtrl::getWakeupSrcFromUboot() {
    return mTarnMgr->exeCmdSet_Int(CMD_PMS_GET_WAKEUP_SRC_FROM_UBOOT);
}

String16 PmsCtrl::readAssetData(int a, int b) {
    Parcel request;
    request.writeInt32(a);
    request.writeInt32(b);
    Parcel reply;
    mTarnMgr->exeCmdSet_Parcel(CMD_PMS_READ_ASSET_DATA, request, &reply);
    return reply.readString16();
}

bool PmsCtrl::setPmsWakeupSources(const std::vector<_TarnEnumInputSourceId_>& sources) {
    Parcel request;
    request.writeInt32(static_cast<int32_t>(sources.size()));
    for (const _TarnEnumInputSourceId_ source : sources) request.writeInt32(source);
    Parcel reply;
    mTarnMgr->exeCmdSet_Parcel(CMD_PMS_SET_WAKEUP_SOURCES, request, &reply);
    if (reply.dataSize() == 0) return false;
    reply.readInt32();
    return reply.readInt32() != 0;
}

}  // namespace android
