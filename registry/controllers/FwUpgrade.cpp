#include <tarn/IFwUpgrade.h>

#include "registry/Builder.h"
#include "registry/Results.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<EntityFwInfoMcu> : RecordResult<EntityFwInfoMcu> {
    static constexpr const char* kWords = "MCU firmware";
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
    Builder<IFwUpgrade> builder(registry, "fwUpgrade", "FwUpgrade", &ITarnManager::getFwUpgrade);
    builder.method("setFirmwareUpgrade", Row::CMD_FW_SET_UPGRADE, &IFwUpgrade::setFirmwareUpgrade,
                   "type, path");
    METHOD(getMcuBinNameToUp, CMD_FW_GET_MCU_BIN_NAME_TO_UP);
    METHOD(getFwVersion, CMD_FW_GET_VERSION);
    METHOD(getFwOtakey, CMD_FW_GET_OTAKEY);
    METHOD(getFwInfoTypecList, CMD_FW_GET_INFO_TYPEC_LIST);
    builder.adapted(
            "getFwMcuList", Row::CMD_FW_GET_MCU_LIST, &IFwUpgrade::getFwMcuList,
            +[](IFwUpgrade& fwUpgrade) {
                std::vector<EntityFwInfoMcu> list;
                const bool ok = fwUpgrade.getFwMcuList(list);
                return fields({{"result", ok}, {"list", toJson(list)}});
            });
    METHOD(getFwTargetVersion, CMD_FW_GET_TARGET_VERSION);
    METHOD(getFwTargetBinPath, CMD_FW_GET_TARGET_BIN_PATH);
}

}  // namespace tarn::registry
