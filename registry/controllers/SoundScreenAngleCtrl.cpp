#include <tarn/ISoundScreenAngleCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultWriter<SoundScreenAngle> {
    static constexpr const char* kType = "angles";
    static Json::Value toJson(const SoundScreenAngle& angle) {
        return fields({{"first", angle.first}, {"second", angle.second}});
    }
};

void registerSoundScreenAngleCtrl(std::vector<Controller>* registry) {
    Builder<ISoundScreenAngleCtrl>(registry, "soundScreenAngle", "SoundScreenAngleCtrl",
                                   &ITarnManager::getSoundScreenAngleCtrl)
            .method("setSoundScreenAngle", Row::CMD_SOUND_SCREEN_ANGLE_SET_ANGLE,
                    &ISoundScreenAngleCtrl::setSoundScreenAngle, "first, second")
            .method("getSoundScreenAngle", Row::CMD_SOUND_SCREEN_ANGLE_GET_ANGLE,
                    &ISoundScreenAngleCtrl::getSoundScreenAngle);
}

}  // namespace tarn::registry
