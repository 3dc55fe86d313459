#include "modules/AnionCtrl.h"

#include "protocol/Commands.h"

namespace android {

AnionCtrl::AnionCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int AnionCtrl::setAnionStatus(int status) {
    return mTarnMgr->exeCmdSet_Int(CMD_ANION_SET_STATUS, status);
}

}  // namespace android
