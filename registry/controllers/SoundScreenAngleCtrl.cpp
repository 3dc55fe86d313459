#include <tarn/ISoundScreenAngleCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<SoundScreenAngle> : RecordResult {
    static constexpr const char* kWords = "angles";
    static Answer answer(const SoundScreenAngle& angle) {
        return record().field("first", angle.first).field("second", angle.second);
    }
};

void registerSoundScreenAngleCtrl(std::vector<Controller>* registry) {
    Builder<ISoundScreenAngleCtrl> builder(registry, "soundScreenAngle", "SoundScreenAngleCtrl",
                                           &ITarnManager::getSoundScreenAngleCtrl);
    METHOD(setSoundScreenAngle, CMD_SOUND_SCREEN_ANGLE_SET_ANGLE);
    METHOD(getSoundScreenAngle, CMD_SOUND_SCREEN_ANGLE_GET_ANGLE);
}

}  // namespace tarn::registry
