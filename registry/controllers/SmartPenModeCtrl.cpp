#include <tarn/ISmartPenModeCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerSmartPenModeCtrl(std::vector<Controller>* registry) {
    Builder<ISmartPenModeCtrl> builder(registry, "smartPenMode", "SmartPenModeCtrl",
                                       &ITarnManager::getSmartPenModeCtrl);
    METHOD(getSupportSmartPenModeList, CMD_SMART_PEN_MODE_GET_SUPPORTED);
    METHOD(setSmartPenMode, CMD_SMART_PEN_MODE_SET_MODE);
    METHOD(getSmartPenMode, CMD_SMART_PEN_MODE_GET_MODE);
}

}  // namespace tarn::registry
