#include <tarn/IRs232Ctrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerRs232Ctrl(std::vector<Controller>* registry) {
    Builder<IRs232Ctrl> builder(registry, "rs232", "Rs232Ctrl", &ITarnManager::getRs232Ctrl);
    METHOD(getSmartRs232FrontUsb, CMD_RS232_CTRL_GET_FRONT_USB);
    METHOD(getSmartRs232SideUsb, CMD_RS232_CTRL_GET_SIDE_USB);
    METHOD(getSmartRs232EthMac, CMD_RS232_CTRL_GET_ETH_MAC);
    METHOD(getATRs232TestResult, CMD_RS232_CTRL_GET_TEST_RESULT);
    METHOD(getEmmcSize, CMD_RS232_CTRL_GET_EMMC_SIZE);
    METHOD(getRamSize, CMD_RS232_CTRL_GET_RAM_SIZE);
    METHOD(getSmartRs232Sdcard, CMD_RS232_CTRL_GET_SD_CARD);
    METHOD(getSmartRs232PcDet, CMD_RS232_CTRL_GET_PC_DET);
    METHOD(getSmartRs232PcStatus, CMD_RS232_CTRL_GET_PC_STATUS);
}

}  // namespace tarn::registry
