#include "modules/RemoteCtrl.h"

#include "protocol/Commands.h"

namespace android {

RemoteCtrl::RemoteCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

bool RemoteCtrl::disableRemoteCtrl() {
    return mTarnMgr->exeCmdSet_Bool(CMD_REMOTE_DISABLE);
}

bool RemoteCtrl::enableRemoteCtrl() {
    return mTarnMgr->exeCmdSet_Bool(CMD_REMOTE_ENABLE);
}

String16 RemoteCtrl::getParameter(String16 key) {
    Parcel request;
    request.writeString16(key);
    Parcel reply;
    const int status = mTarnMgr->exeCmdSet_Parcel(CMD_REMOTE_GET_PARAMETER, request, &reply);
    return status != -1 ? reply.readString16() : String16("Unimplemented interface");
}

bool RemoteCtrl::setParameter(String16 key, String16 value) {
    Parcel request;
    request.writeString16(key);
    request.writeString16(value);
    Parcel reply;
    return mTarnMgr->exeCmdSet_Parcel(CMD_REMOTE_SET_PARAMETER, request, &reply) != -1;
}

}  // namespace android
