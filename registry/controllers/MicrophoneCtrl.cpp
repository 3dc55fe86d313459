#include <tarn/IMicrophoneCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<EntityMicrophone> : RecordResult {
    static constexpr const char* kWords = "microphone";
    static Answer answer(const EntityMicrophone& microphone) {
        return record()
                .field("value0", microphone.value0)
                .field("value1", microphone.value1)
                .field("value2", microphone.value2)
                .field("text0", microphone.text0)
                .field("flag0", microphone.flag0)
                .field("text1", microphone.text1)
                .field("flag1", microphone.flag1)
                .field("text2", microphone.text2)
                .field("text3", microphone.text3)
                .field("text4", microphone.text4)
                .field("flag2", microphone.flag2);
    }
};

void registerMicrophoneCtrl(std::vector<Controller>* registry) {
    Builder<IMicrophoneCtrl> builder(registry, "microphone", "MicrophoneCtrl",
                                     &ITarnManager::getMicrophoneCtrl);
    builder.adapted(
            "getFwMicrophoneList", Row::CMD_MICROPHONE_GET_FW_MICROPHONE_LIST,
            &IMicrophoneCtrl::getFwMicrophoneList, +[](IMicrophoneCtrl& microphone) {
                std::vector<EntityMicrophone> list;
                const int result = microphone.getFwMicrophoneList(&list);
                return record().field("result", result).field("list", list);
            });
    METHOD(isBuildInMicEnabled, CMD_MICROPHONE_IS_BUILD_IN_MIC_ENABLED);
    METHOD(setBuildInMicEnabled, CMD_MICROPHONE_SET_BUILD_IN_MIC_ENABLED);
}

}  // namespace tarn::registry
