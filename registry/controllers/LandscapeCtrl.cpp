#include <tarn/ILandscapeCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerLandscapeCtrl(std::vector<Controller>* registry) {
    Builder<ILandscapeCtrl>(registry, "landscape", "LandscapeCtrl", &ITarnManager::getLandscapeCtrl)
            .method("setLandscapeAppList", Row::CMD_LANDSCAPE_SET_APP_LIST,
                    &ILandscapeCtrl::setLandscapeAppList, "apps")
            .method("getLandscapeAppList", Row::CMD_LANDSCAPE_GET_APP_LIST,
                    &ILandscapeCtrl::getLandscapeAppList);
}

}  // namespace tarn::registry
