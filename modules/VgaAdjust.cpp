#include "modules/VgaAdjust.h"

#include "protocol/Commands.h"

namespace android {

VgaAdjust::VgaAdjust(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int VgaAdjust::setvgaAdjustData(int item, int value) {
    return mTarnMgr->exeCmdSet_Int(CMD_VGA_SET_ADJUST_DATA, item, value);
}

int VgaAdjust::getvgaAdjustData(int item) {
    return mTarnMgr->exeCmdSet_Int(CMD_VGA_GET_ADJUST_DATA, item);
}

}  // namespace android
