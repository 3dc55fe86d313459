#include "modules/DebugCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

namespace android {

DebugCtrl::DebugCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

bool DebugCtrl::getSuperRootState() {
    Parcel reply;
    const int status = mTarnMgr->exeCmdSet_Parcel(CMD_DEBUG_GET_SUPER_ROOT_STATE, &reply);
    return boolUnlessFailed(status, reply);
}

bool DebugCtrl::setSuperRootState(const char* state) {
    Parcel request;
    request.writeString16(String16(state));
    Parcel reply;
    const int status = mTarnMgr->exeCmdSet_Parcel(CMD_DEBUG_SET_SUPER_ROOT_STATE, request, &reply);
    return boolUnlessFailed(status, reply);
}

}  // namespace android
