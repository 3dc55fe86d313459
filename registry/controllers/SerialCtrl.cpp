#include <tarn/ISerialCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerSerialCtrl(std::vector<Controller>* registry) {
    Builder<ISerialCtrl>(registry, "serial", "SerialCtrl", &ITarnManager::getSerialCtrl)
            .method("SetSerialSwitch", Row::CMD_SERIAL_SET_SWITCH, &ISerialCtrl::SetSerialSwitch,
                    "device, on, param")
            .method("SendSerialData", Row::CMD_SERIAL_SEND_DATA, &ISerialCtrl::SendSerialData,
                    "device, data")
            .method("SetSerialParamToAutoTest", Row::CMD_SERIAL_SET_PARAM_TO_AUTO_TEST,
                    &ISerialCtrl::SetSerialParamToAutoTest, "device")
            .method("getRS232Baudrate", Row::CMD_SERIAL_GET_RS232_BAUDRATE,
                    &ISerialCtrl::getRS232Baudrate)
            .method("getRS232Port", Row::CMD_SERIAL_GET_RS232_PORT, &ISerialCtrl::getRS232Port)
            .method("setSerialDeviceId", Row::CMD_SERIAL_SET_DEVICE_ID,
                    &ISerialCtrl::setSerialDeviceId, "device, id")
            .method("getSerialDeviceId", Row::CMD_SERIAL_GET_DEVICE_ID,
                    &ISerialCtrl::getSerialDeviceId, "device");
}

}  // namespace tarn::registry
