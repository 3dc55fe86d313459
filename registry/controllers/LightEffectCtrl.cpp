#include <tarn/ILightEffectCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerLightEffectCtrl(std::vector<Controller>* registry) {
    Builder<ILightEffectCtrl>(registry, "lightEffect", "LightEffectCtrl",
                              &ITarnManager::getLightEffectCtrl)
            .method("setLightEffectMode", Row::CMD_LIGHT_EFFECT_SET_MODE,
                    &ILightEffectCtrl::setLightEffectMode, "device, mode");
}

}  // namespace tarn::registry
