#include "modules/BluetoothCtrl.h"

#include "protocol/Commands.h"

namespace android {

BluetoothCtrl::BluetoothCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

bool BluetoothCtrl::isBleWakeup() {
    return mTarnMgr->exeCmdSet_Bool(CMD_BLUETOOTH_IS_BLE_WAKEUP);
}

bool BluetoothCtrl::setBleWakeup(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_BLUETOOTH_SET_BLE_WAKEUP, on);
}

}  // namespace android
