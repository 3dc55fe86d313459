#include <tarn/IFwUpgrade.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<EntityFwInfoMcu> : RecordResult {
    static constexpr const char* kWords = "MCU firmware";
    static Answer answer(const EntityFwInfoMcu& mcu) {
        return record()
                .field("intField1", mcu.intField1)
                .field("intField2", mcu.intField2)
                .field("strField1", mcu.strField1)
                .field("intField3", mcu.intField3)
                .field("strField2", mcu.strField2)
                .field("intField4", mcu.intField4)
                .field("strField3", mcu.strField3)
                .field("strField4", mcu.strField4)
                .field("shortStrField", mcu.shortStrField)
                .field("intField5", mcu.intField5);
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
                return record().field("result", ok).field("list", list);
            });
    METHOD(getFwTargetVersion, CMD_FW_GET_TARGET_VERSION);
    METHOD(getFwTargetBinPath, CMD_FW_GET_TARGET_BIN_PATH);
}

}  // namespace tarn::registry
