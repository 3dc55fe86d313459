#include <tarn/IAiNoiseCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerAiNoiseCtrl(std::vector<Controller>* registry) {
    Builder<IAiNoiseCtrl> builder(registry, "aiNoise", "AiNoiseCtrl",
                                  &ITarnManager::getAiNoiseCtrl);
    METHOD(setAiNoise, CMD_AI_NOISE_SET_AI_NOISE);
    METHOD(getAiNoise, CMD_AI_NOISE_GET_AI_NOISE);
}

}  // namespace tarn::registry
