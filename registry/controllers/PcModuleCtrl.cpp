#include <tarn/IPcModuleCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerPcModuleCtrl(std::vector<Controller>* registry) {
    Builder<IPcModuleCtrl> builder(registry, "pcModule", "PcModuleCtrl",
                                   &ITarnManager::getPcModuleCtrl);
    METHOD(getPcState, CMD_PC_MODULE_GET_STATE);
    METHOD(setPcSwitchOn, CMD_PC_MODULE_SET_SWITCH_ON);
    METHOD(setPcSwitchOff, CMD_PC_MODULE_SET_SWITCH_OFF);
    METHOD(setPcRecovery, CMD_PC_MODULE_SET_RECOVERY);
    builder.adapted(
            "sendSerialData", kNoCommand, &IPcModuleCtrl::sendSerialData,
            +[](IPcModuleCtrl& pcModule, std::vector<uint8_t> data) {
                return pcModule.sendSerialData(data.data(), static_cast<int>(data.size()));
            },
            "data");
    METHOD(getSupportPcBootModeList, CMD_PC_MODULE_GET_SUPPORTED_BOOT_MODES);
    METHOD(setPcBootMode, CMD_PC_MODULE_SET_BOOT_MODE);
    METHOD(getPcBootMode, CMD_PC_MODULE_GET_BOOT_MODE);
}

}  // namespace tarn::registry
