#include <tarn/IPcModuleCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerPcModuleCtrl(std::vector<Controller>* registry) {
    Builder<IPcModuleCtrl>(registry, "pcModule", "PcModuleCtrl", &ITarnManager::getPcModuleCtrl)
            .method("getPcState", Row::CMD_PC_MODULE_GET_STATE, &IPcModuleCtrl::getPcState)
            .method("setPcSwitchOn", Row::CMD_PC_MODULE_SET_SWITCH_ON,
                    &IPcModuleCtrl::setPcSwitchOn)
            .method("setPcSwitchOff", Row::CMD_PC_MODULE_SET_SWITCH_OFF,
                    &IPcModuleCtrl::setPcSwitchOff)
            .method("setPcRecovery", Row::CMD_PC_MODULE_SET_RECOVERY, &IPcModuleCtrl::setPcRecovery)
            .adapted(
                    "sendSerialData", kNoCommand, &IPcModuleCtrl::sendSerialData,
                    [](IPcModuleCtrl& pcModule, std::vector<uint8_t> data) {
                        return pcModule.sendSerialData(data.data(), static_cast<int>(data.size()));
                    },
                    "data")
            .method("getSupportPcBootModeList", Row::CMD_PC_MODULE_GET_SUPPORTED_BOOT_MODES,
                    &IPcModuleCtrl::getSupportPcBootModeList)
            .method("setPcBootMode", Row::CMD_PC_MODULE_SET_BOOT_MODE,
                    &IPcModuleCtrl::setPcBootMode, "mode")
            .method("getPcBootMode", Row::CMD_PC_MODULE_GET_BOOT_MODE,
                    &IPcModuleCtrl::getPcBootMode);
}

}  // namespace tarn::registry
