#include "modules/DebugCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

namespace android {

DebugCtrl::DebugCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

bool DebugCtrl::getSuperRootState() {
    return askForBoolUnlessFailed(mTarnMgr, CMD_DEBUG_GET_SUPER_ROOT_STATE);
}

bool DebugCtrl::setSuperRootState(const char* state) {
    return sendForBoolUnlessFailed(mTarnMgr, CMD_DEBUG_SET_SUPER_ROOT_STATE, String16(state));
}

}  // namespace android
