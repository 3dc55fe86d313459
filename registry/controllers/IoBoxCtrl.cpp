#include <tarn/IIoBoxCtrl.h>

#include "registry/Builder.h"
#include "registry/Results.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<EntityFwIoBox> : RecordResult<EntityFwIoBox> {
    static constexpr const char* kWords = "I/O box firmware";
    static Json::Value toJson(const EntityFwIoBox& box) {
        return fields({{"value0", box.value0},
                       {"value1", box.value1},
                       {"value2", box.value2},
                       {"value3", box.value3},
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

void registerIoBoxCtrl(std::vector<Controller>* registry) {
    Builder<IIoBoxCtrl> builder(registry, "ioBox", "IoBoxCtrl", &ITarnManager::getIoBoxCtrl);
    METHOD(getConnectStatus, CMD_IOBOX_GET_CONNECT_STATUS);
    builder.adapted(
            "getFwIoBoxList", Row::CMD_IOBOX_GET_FW_LIST, &IIoBoxCtrl::getFwIoBoxList,
            +[](IIoBoxCtrl& ioBox) {
                std::vector<EntityFwIoBox> list;
                const bool ok = ioBox.getFwIoBoxList(&list);
                return fields({{"result", ok}, {"list", toJson(list)}});
            });
}

}  // namespace tarn::registry
