#include <tarn/IXbugCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerXbugCtrl(std::vector<Controller>* registry) {
    Builder<IXbugCtrl> builder(registry, "xbug", "XbugCtrl", &ITarnManager::getXbugCtrl);
    METHOD(setTarnServiceLogLevel, CMD_XBUG_SET_SERVICE_LOG_LEVEL);
    METHOD(getTarnServiceLogLevel, CMD_XBUG_GET_SERVICE_LOG_LEVEL);
    METHOD(sendMcuCmdDumpZUNTLog, CMD_XBUG_DUMP_MCU_LOG);
    METHOD(setTarnFuntionChkBaseTime, CMD_XBUG_SET_FUNCTION_CHECK_BASE_TIME);
    METHOD(getTarnFuntionChkBaseTime, CMD_XBUG_GET_FUNCTION_CHECK_BASE_TIME);
    METHOD(getTarnFuntionTimeOutList, CMD_XBUG_GET_FUNCTION_TIMEOUT_LIST);
    METHOD(getNodeInfo, CMD_XBUG_GET_NODE_INFO);
}

}  // namespace tarn::registry
