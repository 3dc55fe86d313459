#include <tarn/IRs232Ctrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerRs232Ctrl(std::vector<Controller>* registry) {
    Builder<IRs232Ctrl>(registry, "rs232", "Rs232Ctrl", &ITarnManager::getRs232Ctrl)
            .method("getSmartRs232FrontUsb", Row::CMD_RS232_CTRL_GET_FRONT_USB,
                    &IRs232Ctrl::getSmartRs232FrontUsb, "port")
            .method("getSmartRs232SideUsb", Row::CMD_RS232_CTRL_GET_SIDE_USB,
                    &IRs232Ctrl::getSmartRs232SideUsb, "port")
            .method("getSmartRs232EthMac", Row::CMD_RS232_CTRL_GET_ETH_MAC,
                    &IRs232Ctrl::getSmartRs232EthMac, "port")
            .method("getATRs232TestResult", Row::CMD_RS232_CTRL_GET_TEST_RESULT,
                    &IRs232Ctrl::getATRs232TestResult)
            .method("getEmmcSize", Row::CMD_RS232_CTRL_GET_EMMC_SIZE, &IRs232Ctrl::getEmmcSize)
            .method("getRamSize", Row::CMD_RS232_CTRL_GET_RAM_SIZE, &IRs232Ctrl::getRamSize)
            .method("getSmartRs232Sdcard", Row::CMD_RS232_CTRL_GET_SD_CARD,
                    &IRs232Ctrl::getSmartRs232Sdcard)
            .method("getSmartRs232PcDet", Row::CMD_RS232_CTRL_GET_PC_DET,
                    &IRs232Ctrl::getSmartRs232PcDet)
            .method("getSmartRs232PcStatus", Row::CMD_RS232_CTRL_GET_PC_STATUS,
                    &IRs232Ctrl::getSmartRs232PcStatus);
}

}  // namespace tarn::registry
