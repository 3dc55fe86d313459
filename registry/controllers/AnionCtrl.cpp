#include <tarn/IAnionCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerAnionCtrl(std::vector<Controller>* registry) {
    Builder<IAnionCtrl>(registry, "anion", "AnionCtrl", &ITarnManager::getAnionCtrl)
            .method("setAnionStatus", Row::CMD_ANION_SET_STATUS, &IAnionCtrl::setAnionStatus,
                    "status");
}

}  // namespace tarn::registry
