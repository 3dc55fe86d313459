#include <tarn/IDevicePortCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerDevicePortCtrl(std::vector<Controller>* registry) {
    Builder<IDevicePortCtrl> builder(registry, "devicePort", "DevicePortCtrl",
                                     &ITarnManager::getDevicePortCtrl);
    METHOD(setDevicePortEnabled, CMD_DEVICE_PORT_SET_ENABLED);
    METHOD(getDevicePortEnabled, CMD_DEVICE_PORT_GET_ENABLED);
    builder.adapted(
            "getDevicePortList", Row::CMD_DEVICE_PORT_GET_LIST, &IDevicePortCtrl::getDevicePortList,
            +[](IDevicePortCtrl& ports) {
                std::vector<String16> names;
                const int result = ports.getDevicePortList(names);
                return record().field("result", result).field("ports", names);
            });
}

}  // namespace tarn::registry
