#include <tarn/ILightEffectCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerLightEffectCtrl(std::vector<Controller>* registry) {
    Builder<ILightEffectCtrl> builder(registry, "lightEffect", "LightEffectCtrl",
                                      &ITarnManager::getLightEffectCtrl);
    METHOD(setLightEffectMode, CMD_LIGHT_EFFECT_SET_MODE);
}

}  // namespace tarn::registry
