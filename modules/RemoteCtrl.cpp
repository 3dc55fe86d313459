#include "modules/RemoteCtrl.h"

#include "modules/Parameters.h"
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
    return readParameter(mTarnMgr, CMD_REMOTE_GET_PARAMETER, key);
}

bool RemoteCtrl::setParameter(String16 key, String16 value) {
    return writeParameter(mTarnMgr, CMD_REMOTE_SET_PARAMETER, key, value);
}

}  // namespace android
