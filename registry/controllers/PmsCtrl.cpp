#include <tarn/IPmsCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerPmsCtrl(std::vector<Controller>* registry) {
    Builder<IPmsCtrl>(registry, "pms", "PmsCtrl", &ITarnManager::getPmsCtrl)
            .method("getWakeupSrc", Row::CMD_PMS_GET_WAKEUP_SRC, &IPmsCtrl::getWakeupSrc)
            .method("getWakeupSrcFromUboot", Row::CMD_PMS_GET_WAKEUP_SRC_FROM_UBOOT,
                    &IPmsCtrl::getWakeupSrcFromUboot)
            .method("readAssetData", Row::CMD_PMS_READ_ASSET_DATA, &IPmsCtrl::readAssetData, "a, b")
            .method("setPmsWakeupSources", Row::CMD_PMS_SET_WAKEUP_SOURCES,
                    &IPmsCtrl::setPmsWakeupSources, "sources");
}

}  // namespace tarn::registry
