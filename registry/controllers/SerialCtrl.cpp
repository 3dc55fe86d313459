#include <tarn/ISerialCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerSerialCtrl(std::vector<Controller>* registry) {
    Builder<ISerialCtrl> builder(registry, "serial", "SerialCtrl", &ITarnManager::getSerialCtrl);
    METHOD(SetSerialSwitch, CMD_SERIAL_SET_SWITCH);
    METHOD(SendSerialData, CMD_SERIAL_SEND_DATA);
    METHOD(SetSerialParamToAutoTest, CMD_SERIAL_SET_PARAM_TO_AUTO_TEST);
    METHOD(getRS232Baudrate, CMD_SERIAL_GET_RS232_BAUDRATE);
    METHOD(getRS232Port, CMD_SERIAL_GET_RS232_PORT);
    METHOD(setSerialDeviceId, CMD_SERIAL_SET_DEVICE_ID);
    METHOD(getSerialDeviceId, CMD_SERIAL_GET_DEVICE_ID);
}

}  // namespace tarn::registry
