#include <tarn/ISmartPenModeCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerSmartPenModeCtrl(std::vector<Controller>* registry) {
    Builder<ISmartPenModeCtrl>(registry, "smartPenMode", "SmartPenModeCtrl",
                               &ITarnManager::getSmartPenModeCtrl)
            .method("getSupportSmartPenModeList", Row::CMD_SMART_PEN_MODE_GET_SUPPORTED,
                    &ISmartPenModeCtrl::getSupportSmartPenModeList)
            .method("setSmartPenMode", Row::CMD_SMART_PEN_MODE_SET_MODE,
                    &ISmartPenModeCtrl::setSmartPenMode, "mode")
            .method("getSmartPenMode", Row::CMD_SMART_PEN_MODE_GET_MODE,
                    &ISmartPenModeCtrl::getSmartPenMode);
}

}  // namespace tarn::registry
