#include <tarn/IDebugCtrl.h>

#include "protocol/Commands.h"
#include "registry/Builder.h"

using namespace android;

namespace tarnctl {

void registerDebugCtrl(std::vector<Controller>* registry) {
    Builder<IDebugCtrl>(registry, "debug", "DebugCtrl", &ITarnManager::getDebugCtrl)
            .method("getSuperRootState", CMD_DEBUG_GET_SUPER_ROOT_STATE,
                    &IDebugCtrl::getSuperRootState)
            .method("setSuperRootState", CMD_DEBUG_SET_SUPER_ROOT_STATE,
                    &IDebugCtrl::setSuperRootState, "state");
}

}  // namespace tarnctl
