#include <tarn/IAiNoiseCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerAiNoiseCtrl(std::vector<Controller>* registry) {
    Builder<IAiNoiseCtrl>(registry, "aiNoise", "AiNoiseCtrl", &ITarnManager::getAiNoiseCtrl)
            .method("setAiNoise", Row::CMD_AI_NOISE_SET_AI_NOISE, &IAiNoiseCtrl::setAiNoise,
                    "level")
            .method("getAiNoise", Row::CMD_AI_NOISE_GET_AI_NOISE, &IAiNoiseCtrl::getAiNoise);
}

}  // namespace tarn::registry
