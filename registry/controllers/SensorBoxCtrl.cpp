#include <tarn/ISensorBoxCtrl.h>

#include "registry/Builder.h"
#include "registry/Results.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<EntitySensorBox> : RecordResult<EntitySensorBox> {
    static constexpr const char* kWords = "sensor box firmware";
    static Json::Value toJson(const EntitySensorBox& box) {
        return fields({{"value0", box.value0},
                       {"text0", box.text0},
                       {"flag0", box.flag0},
                       {"text1", box.text1},
                       {"flag1", box.flag1},
                       {"text2", box.text2},
                       {"text3", box.text3},
                       {"text4", box.text4},
                       {"flag2", box.flag2}});
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
                return fields({{"result", ok}, {"list", toJson(list)}});
            });
}

}  // namespace tarn::registry
