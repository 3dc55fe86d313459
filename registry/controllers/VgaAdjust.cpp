#include <tarn/IVgaAdjust.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerVgaAdjust(std::vector<Controller>* registry) {
    Builder<IVgaAdjust>(registry, "vgaAdjust", "VgaAdjust", &ITarnManager::getVgaAdjust)
            .method("setvgaAdjustData", Row::CMD_VGA_SET_ADJUST_DATA, &IVgaAdjust::setvgaAdjustData,
                    "item, value")
            .method("getvgaAdjustData", Row::CMD_VGA_GET_ADJUST_DATA, &IVgaAdjust::getvgaAdjustData,
                    "item");
}

}  // namespace tarn::registry
