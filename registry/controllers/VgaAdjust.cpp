#include <tarn/IVgaAdjust.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerVgaAdjust(std::vector<Controller>* registry) {
    Builder<IVgaAdjust> builder(registry, "vgaAdjust", "VgaAdjust", &ITarnManager::getVgaAdjust);
    METHOD(setvgaAdjustData, CMD_VGA_SET_ADJUST_DATA);
    METHOD(getvgaAdjustData, CMD_VGA_GET_ADJUST_DATA);
}

}  // namespace tarn::registry
