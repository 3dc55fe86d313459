#include <tarn/ISensorBoxCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<EntitySensorBox> : RecordResult {
    static constexpr const char* kWords = "sensor box firmware";
    static Answer answer(const EntitySensorBox& box) {
        return record()
                .field("value0", box.value0)
                .field("text0", box.text0)
                .field("flag0", box.flag0)
                .field("text1", box.text1)
                .field("flag1", box.flag1)
                .field("text2", box.text2)
                .field("text3", box.text3)
                .field("text4", box.text4)
                .field("flag2", box.flag2);
    }
};

void registerSensorBoxCtrl(std::vector<Controller>* registry) {
    Builder<ISensorBoxCtrl> builder(registry, "sensorBox", "SensorBoxCtrl",
                                    &ITarnManager::getSensorBoxCtrl);
    builder.adapted(
            "getFwSensorBoxList", Row::CMD_SENSOR_BOX_GET_FW_LIST,
            &ISensorBoxCtrl::getFwSensorBoxList, +[](ISensorBoxCtrl& sensorBox) {
                std::vector<EntitySensorBox> list;
                const bool ok = sensorBox.getFwSensorBoxList(&list);
                return record().field("result", ok).field("list", list);
            });
}

}  // namespace tarn::registry
