#include <tarn/IIoBoxCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<EntityFwIoBox> : RecordResult {
    static constexpr const char* kWords = "I/O box firmware";
    static Answer answer(const EntityFwIoBox& box) {
        return record()
                .field("value0", box.value0)
                .field("value1", box.value1)
                .field("value2", box.value2)
                .field("value3", box.value3)
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

void registerIoBoxCtrl(std::vector<Controller>* registry) {
    Builder<IIoBoxCtrl> builder(registry, "ioBox", "IoBoxCtrl", &ITarnManager::getIoBoxCtrl);
    METHOD(getConnectStatus, CMD_IOBOX_GET_CONNECT_STATUS);
    builder.adapted(
            "getFwIoBoxList", Row::CMD_IOBOX_GET_FW_LIST, &IIoBoxCtrl::getFwIoBoxList,
            +[](IIoBoxCtrl& ioBox) {
                std::vector<EntityFwIoBox> list;
                const bool ok = ioBox.getFwIoBoxList(&list);
                return record().field("result", ok).field("list", list);
            });
}

}  // namespace tarn::registry
