#include "modules/EasyTouch.h"

#include "protocol/Commands.h"

namespace android {

EasyTouch::EasyTouch(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int EasyTouch::getEasyTouchLogInfo() {
    return mTarnMgr->exeCmdSet_Int(CMD_EASY_TOUCH_GET_LOG_INFO);
}

}  // namespace android
