#include <tarn/IXbugCtrl.h>

#include "protocol/Commands.h"
#include "registry/Builder.h"

using namespace android;

namespace tarnctl {

void registerXbugCtrl(std::vector<Controller>* registry) {
    Builder<IXbugCtrl>(registry, "xbug", "XbugCtrl", &ITarnManager::getXbugCtrl)
            .method("setTarnServiceLogLevel", CMD_XBUG_SET_SERVICE_LOG_LEVEL,
                    &IXbugCtrl::setTarnServiceLogLevel, "level")
            .method("getTarnServiceLogLevel", CMD_XBUG_GET_SERVICE_LOG_LEVEL,
                    &IXbugCtrl::getTarnServiceLogLevel, "which")
            .method("sendMcuCmdDumpZUNTLog", CMD_XBUG_DUMP_MCU_LOG,
                    &IXbugCtrl::sendMcuCmdDumpZUNTLog)
            .method("setTarnFuntionChkBaseTime", CMD_XBUG_SET_FUNCTION_CHECK_BASE_TIME,
                    &IXbugCtrl::setTarnFuntionChkBaseTime, "baseTime")
            .method("getTarnFuntionChkBaseTime", CMD_XBUG_GET_FUNCTION_CHECK_BASE_TIME,
                    &IXbugCtrl::getTarnFuntionChkBaseTime)
            .method("getTarnFuntionTimeOutList", CMD_XBUG_GET_FUNCTION_TIMEOUT_LIST,
                    &IXbugCtrl::getTarnFuntionTimeOutList)
            .method("getNodeInfo", CMD_XBUG_GET_NODE_INFO, &IXbugCtrl::getNodeInfo, "node");
}

}  // namespace tarnctl
