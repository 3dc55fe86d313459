#include <tarn/IDebugCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerDebugCtrl(std::vector<Controller>* registry) {
    Builder<IDebugCtrl>(registry, "debug", "DebugCtrl", &ITarnManager::getDebugCtrl)
            .method("getSuperRootState", Row::CMD_DEBUG_GET_SUPER_ROOT_STATE,
                    &IDebugCtrl::getSuperRootState)
            .method("setSuperRootState", Row::CMD_DEBUG_SET_SUPER_ROOT_STATE,
                    &IDebugCtrl::setSuperRootState, "state");
}

}  // namespace tarn::registry
