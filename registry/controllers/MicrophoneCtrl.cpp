#include <tarn/IMicrophoneCtrl.h>

#include "registry/Builder.h"
#include "registry/Results.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<EntityMicrophone> : RecordResult<EntityMicrophone> {
    static constexpr const char* kWords = "microphone";
    static Json::Value toJson(const EntityMicrophone& microphone) {
        return fields({{"value0", microphone.value0},
                       {"value1", microphone.value1},
                       {"value2", microphone.value2},
                       {"text0", microphone.text0},
                       {"flag0", microphone.flag0},
                       {"text1", microphone.text1},
                       {"flag1", microphone.flag1},
                       {"text2", microphone.text2},
                       {"text3", microphone.text3},
                       {"text4", microphone.text4},
                       {"flag2", microphone.flag2}});
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
                return fields({{"result", toJson(result)}, {"list", toJson(list)}});
            });
    METHOD(isBuildInMicEnabled, CMD_MICROPHONE_IS_BUILD_IN_MIC_ENABLED);
    METHOD(setBuildInMicEnabled, CMD_MICROPHONE_SET_BUILD_IN_MIC_ENABLED);
}

}  // namespace tarn::registry
