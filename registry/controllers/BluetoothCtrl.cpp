#include <tarn/IBluetoothCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerBluetoothCtrl(std::vector<Controller>* registry) {
    Builder<IBluetoothCtrl>(registry, "bluetooth", "BluetoothCtrl", &ITarnManager::getBluetoothCtrl)
            .method("isBleWakeup", Row::CMD_BLUETOOTH_IS_BLE_WAKEUP, &IBluetoothCtrl::isBleWakeup)
            .method("setBleWakeup", Row::CMD_BLUETOOTH_SET_BLE_WAKEUP,
                    &IBluetoothCtrl::setBleWakeup, "on");
}

}  // namespace tarn::registry
