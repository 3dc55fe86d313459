#include <tarn/IDevicePortCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerDevicePortCtrl(std::vector<Controller>* registry) {
    Builder<IDevicePortCtrl>(registry, "devicePort", "DevicePortCtrl",
                             &ITarnManager::getDevicePortCtrl)
            .method("setDevicePortEnabled", Row::CMD_DEVICE_PORT_SET_ENABLED,
                    &IDevicePortCtrl::setDevicePortEnabled, "port, enabled")
            .method("getDevicePortEnabled", Row::CMD_DEVICE_PORT_GET_ENABLED,
                    &IDevicePortCtrl::getDevicePortEnabled, "port")
            .adapted("getDevicePortList", Row::CMD_DEVICE_PORT_GET_LIST,
                     &IDevicePortCtrl::getDevicePortList, [](IDevicePortCtrl& ports) {
                         std::vector<String16> names;
                         const int result = ports.getDevicePortList(names);
                         return fields({{"result", toJson(result)}, {"ports", toJson(names)}});
                     });
}

}  // namespace tarn::registry
