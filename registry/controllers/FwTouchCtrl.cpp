#include <tarn/IFwTouchCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<EntityFwTouch> : RecordResult {
    static constexpr const char* kWords = "touch device";
    static Answer answer(const EntityFwTouch& touch) {
        return record()
                .field("value0", touch.value0)
                .field("value1", touch.value1)
                .field("value2", touch.value2)
                .field("text0", touch.text0)
                .field("flag0", touch.flag0)
                .field("text1", touch.text1)
                .field("flag1", touch.flag1)
                .field("text2", touch.text2)
                .field("text3", touch.text3)
                .field("text4", touch.text4)
                .field("flag2", touch.flag2);
    }
};

template <>
struct ResultType<EntityFwTouchDriver> : RecordResult {
    static constexpr const char* kWords = "touch driver";
    static Answer answer(const EntityFwTouchDriver& driver) {
        return record()
                .field("value0", driver.value0)
                .field("value1", driver.value1)
                .field("value2", driver.value2)
                .field("text0", driver.text0)
                .field("flag0", driver.flag0)
                .field("text1", driver.text1);
    }
};

template <>
struct ResultType<TouchFwDataList> : RecordResult {
    static constexpr const char* kWords = "touch device with driver";
    static Answer answer(const TouchFwDataList& data) {
        return record()
                .field("short0", data.short0)
                .field("short1", data.short1)
                .field("touch", data.touch)
                .field("text0", data.text0)
                .field("short2", data.short2)
                .field("reserved0", data.reserved0)
                .field("short3", data.short3)
                .field("short4", data.short4)
                .field("driver", data.driver)
                .field("text1", data.text1)
                .field("short5", data.short5);
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
                return record().field("result", ok).field("list", list);
            });
    builder.adapted(
            "getFwTouchDriverInfoList", Row::CMD_FW_TOUCH_GET_DRIVER_LIST,
            &IFwTouchCtrl::getFwTouchDriverInfoList, +[](IFwTouchCtrl& fwTouch) {
                std::vector<EntityFwTouchDriver> list;
                const bool ok = fwTouch.getFwTouchDriverInfoList(&list);
                return record().field("result", ok).field("list", list);
            });
    builder.adapted(
            "getTouchFwDataList", Row::CMD_FW_TOUCH_GET_DATA_LIST,
            &IFwTouchCtrl::getTouchFwDataList, +[](IFwTouchCtrl& fwTouch) {
                std::vector<TouchFwDataList> list;
                const bool ok = fwTouch.getTouchFwDataList(&list);
                return record().field("result", ok).field("list", list);
            });
}

}  // namespace tarn::registry
