#include <tarn/IFwTouchCtrl.h>

#include "registry/Builder.h"
#include "registry/Results.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<EntityFwTouch> : RecordResult<EntityFwTouch> {
    static constexpr const char* kWords = "touch device";
    static Json::Value toJson(const EntityFwTouch& touch) {
        return fields({{"value0", touch.value0},
                       {"value1", touch.value1},
                       {"value2", touch.value2},
                       {"text0", touch.text0},
                       {"flag0", touch.flag0},
                       {"text1", touch.text1},
                       {"flag1", touch.flag1},
                       {"text2", touch.text2},
                       {"text3", touch.text3},
                       {"text4", touch.text4},
                       {"flag2", touch.flag2}});
    }
};

template <>
struct ResultType<EntityFwTouchDriver> : RecordResult<EntityFwTouchDriver> {
    static constexpr const char* kWords = "touch driver";
    static Json::Value toJson(const EntityFwTouchDriver& driver) {
        return fields({{"value0", driver.value0},
                       {"value1", driver.value1},
                       {"value2", driver.value2},
                       {"text0", driver.text0},
                       {"flag0", driver.flag0},
                       {"text1", driver.text1}});
    }
};

template <>
struct ResultType<TouchFwDataList> : RecordResult<TouchFwDataList> {
    static constexpr const char* kWords = "touch device with driver";
    static Json::Value toJson(const TouchFwDataList& data) {
        return fields({{"short0", data.short0},
                       {"short1", data.short1},
                       {"touch", registry::toJson(data.touch)},
                       {"text0", data.text0},
                       {"short2", data.short2},
                       {"reserved0", data.reserved0},
                       {"short3", data.short3},
                       {"short4", data.short4},
                       {"driver", registry::toJson(data.driver)},
                       {"text1", data.text1},
                       {"short5", data.short5}});
    }
};

void registerFwTouchCtrl(std::vector<Controller>* registry) {
    Builder<IFwTouchCtrl> builder(registry, "fwTouch", "FwTouchCtrl",
                                  &ITarnManager::getFwTouchCtrl);
    builder.adapted(
            "getFwTouchList", Row::CMD_FW_TOUCH_GET_LIST, &IFwTouchCtrl::getFwTouchList,
            +[](IFwTouchCtrl& fwTouch) {
                std::vector<EntityFwTouch> list;
                const bool ok = fwTouch.getFwTouchList(&list);
                return fields({{"result", ok}, {"list", toJson(list)}});
            });
    builder.adapted(
            "getFwTouchDriverInfoList", Row::CMD_FW_TOUCH_GET_DRIVER_LIST,
            &IFwTouchCtrl::getFwTouchDriverInfoList, +[](IFwTouchCtrl& fwTouch) {
                std::vector<EntityFwTouchDriver> list;
                const bool ok = fwTouch.getFwTouchDriverInfoList(&list);
                return fields({{"result", ok}, {"list", toJson(list)}});
            });
    builder.adapted(
            "getTouchFwDataList", Row::CMD_FW_TOUCH_GET_DATA_LIST,
            &IFwTouchCtrl::getTouchFwDataList, +[](IFwTouchCtrl& fwTouch) {
                std::vector<TouchFwDataList> list;
                const bool ok = fwTouch.getTouchFwDataList(&list);
                return fields({{"result", ok}, {"list", toJson(list)}});
            });
}

}  // namespace tarn::registry
