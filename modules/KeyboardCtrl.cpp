#include "modules/KeyboardCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

namespace android {

KeyboardCtrl::KeyboardCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

bool KeyboardCtrl::getKeyboardByName(String16 name) {
    return sendForBoolUnlessFailed(mTarnMgr, CMD_KEYBOARD_GET_BY_NAME, name);
}

bool KeyboardCtrl::getKeyboardByID(int id0, int id1) {
    // A failed command, -1, counts as present.
    return mTarnMgr->exeCmdSet_Int(CMD_KEYBOARD_GET_BY_ID, id0, id1) != 0;
}

}  // namespace android
