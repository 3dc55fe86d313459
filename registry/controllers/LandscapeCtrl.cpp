#include <tarn/ILandscapeCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerLandscapeCtrl(std::vector<Controller>* registry) {
    Builder<ILandscapeCtrl> builder(registry, "landscape", "LandscapeCtrl",
                                    &ITarnManager::getLandscapeCtrl);
    METHOD(setLandscapeAppList, CMD_LANDSCAPE_SET_APP_LIST);
    METHOD(getLandscapeAppList, CMD_LANDSCAPE_GET_APP_LIST);
}

}  // namespace tarn::registry
