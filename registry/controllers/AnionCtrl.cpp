#include <tarn/IAnionCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerAnionCtrl(std::vector<Controller>* registry) {
    Builder<IAnionCtrl> builder(registry, "anion", "AnionCtrl", &ITarnManager::getAnionCtrl);
    METHOD(setAnionStatus, CMD_ANION_SET_STATUS);
}

}  // namespace tarn::registry
