#include <tarn/IDebugCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerDebugCtrl(std::vector<Controller>* registry) {
    Builder<IDebugCtrl> builder(registry, "debug", "DebugCtrl", &ITarnManager::getDebugCtrl);
    METHOD(getSuperRootState, CMD_DEBUG_GET_SUPER_ROOT_STATE);
    METHOD(setSuperRootState, CMD_DEBUG_SET_SUPER_ROOT_STATE);
}

}  // namespace tarn::registry
