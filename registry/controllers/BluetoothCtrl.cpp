#include <tarn/IBluetoothCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerBluetoothCtrl(std::vector<Controller>* registry) {
    Builder<IBluetoothCtrl> builder(registry, "bluetooth", "BluetoothCtrl",
                                    &ITarnManager::getBluetoothCtrl);
    METHOD(isBleWakeup, CMD_BLUETOOTH_IS_BLE_WAKEUP);
    METHOD(setBleWakeup, CMD_BLUETOOTH_SET_BLE_WAKEUP);
}

}  // namespace tarn::registry
