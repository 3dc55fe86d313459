#include <tarn/ISmartPenModeCtrl.h>

#include "protocol/Commands.h"
#include "registry/Builder.h"

using namespace android;

namespace tarnctl {

void registerSmartPenModeCtrl(std::vector<Controller>* registry) {
    Builder<ISmartPenModeCtrl>(registry, "smartPenMode", "SmartPenModeCtrl",
                               &ITarnManager::getSmartPenModeCtrl)
            .method("getSupportSmartPenModeList", CMD_SMART_PEN_MODE_GET_SUPPORTED,
                    &ISmartPenModeCtrl::getSupportSmartPenModeList)
            .method("setSmartPenMode", CMD_SMART_PEN_MODE_SET_MODE,
                    &ISmartPenModeCtrl::setSmartPenMode, "mode")
            .method("getSmartPenMode", CMD_SMART_PEN_MODE_GET_MODE,
                    &ISmartPenModeCtrl::getSmartPenMode);
}

}  // namespace tarnctl
