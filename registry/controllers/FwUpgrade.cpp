#include <tarn/IFwUpgrade.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultWriter<EntityFwInfoMcu> {
    static constexpr const char* kType = "MCU firmware";
    static Json::Value toJson(const EntityFwInfoMcu& mcu) {
        return fields({{"intField1", mcu.intField1},
                       {"intField2", mcu.intField2},
                       {"strField1", mcu.strField1},
                       {"intField3", mcu.intField3},
                       {"strField2", mcu.strField2},
                       {"intField4", mcu.intField4},
                       {"strField3", mcu.strField3},
                       {"strField4", mcu.strField4},
                       {"shortStrField", mcu.shortStrField},
                       {"intField5", mcu.intField5}});
    }
};

void registerFwUpgrade(std::vector<Controller>* registry) {
    Builder<IFwUpgrade>(registry, "fwUpgrade", "FwUpgrade", &ITarnManager::getFwUpgrade)
            .method("setFirmwareUpgrade", Row::CMD_FW_SET_UPGRADE, &IFwUpgrade::setFirmwareUpgrade,
                    "type, path")
            .method("getMcuBinNameToUp", Row::CMD_FW_GET_MCU_BIN_NAME_TO_UP,
                    &IFwUpgrade::getMcuBinNameToUp, "type")
            .method("getFwVersion", Row::CMD_FW_GET_VERSION, &IFwUpgrade::getFwVersion, "type")
            .method("getFwOtakey", Row::CMD_FW_GET_OTAKEY, &IFwUpgrade::getFwOtakey, "type")
            .method("getFwInfoTypecList", Row::CMD_FW_GET_INFO_TYPEC_LIST,
                    &IFwUpgrade::getFwInfoTypecList)
            .adapted("getFwMcuList", Row::CMD_FW_GET_MCU_LIST, &IFwUpgrade::getFwMcuList,
                     [](IFwUpgrade& fwUpgrade) {
                         std::vector<EntityFwInfoMcu> list;
                         const bool ok = fwUpgrade.getFwMcuList(list);
                         return fields({{"result", ok}, {"list", toJson(list)}});
                     })
            .method("getFwTargetVersion", Row::CMD_FW_GET_TARGET_VERSION,
                    &IFwUpgrade::getFwTargetVersion, "type")
            .method("getFwTargetBinPath", Row::CMD_FW_GET_TARGET_BIN_PATH,
                    &IFwUpgrade::getFwTargetBinPath, "type");
}

}  // namespace tarn::registry
