#include <tarn/IPmsCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerPmsCtrl(std::vector<Controller>* registry) {
    Builder<IPmsCtrl> builder(registry, "pms", "PmsCtrl", &ITarnManager::getPmsCtrl);
    METHOD(getWakeupSrc, CMD_PMS_GET_WAKEUP_SRC);
    METHOD(getWakeupSrcFromUboot, CMD_PMS_GET_WAKEUP_SRC_FROM_UBOOT);
    METHOD(readAssetData, CMD_PMS_READ_ASSET_DATA);
    METHOD(setPmsWakeupSources, CMD_PMS_SET_WAKEUP_SOURCES);
}

}  // namespace tarn::registry
