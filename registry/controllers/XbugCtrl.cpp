#include <tarn/IXbugCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerXbugCtrl(std::vector<Controller>* registry) {
    Builder<IXbugCtrl>(registry, "xbug", "XbugCtrl", &ITarnManager::getXbugCtrl)
            .method("setTarnServiceLogLevel", Row::CMD_XBUG_SET_SERVICE_LOG_LEVEL,
                    &IXbugCtrl::setTarnServiceLogLevel, "level")
            .method("getTarnServiceLogLevel", Row::CMD_XBUG_GET_SERVICE_LOG_LEVEL,
                    &IXbugCtrl::getTarnServiceLogLevel, "which")
            .method("sendMcuCmdDumpZUNTLog", Row::CMD_XBUG_DUMP_MCU_LOG,
                    &IXbugCtrl::sendMcuCmdDumpZUNTLog)
            .method("setTarnFuntionChkBaseTime", Row::CMD_XBUG_SET_FUNCTION_CHECK_BASE_TIME,
                    &IXbugCtrl::setTarnFuntionChkBaseTime, "baseTime")
            .method("getTarnFuntionChkBaseTime", Row::CMD_XBUG_GET_FUNCTION_CHECK_BASE_TIME,
                    &IXbugCtrl::getTarnFuntionChkBaseTime)
            .method("getTarnFuntionTimeOutList", Row::CMD_XBUG_GET_FUNCTION_TIMEOUT_LIST,
                    &IXbugCtrl::getTarnFuntionTimeOutList)
            .method("getNodeInfo", Row::CMD_XBUG_GET_NODE_INFO, &IXbugCtrl::getNodeInfo, "node");
}

}  // namespace tarn::registry
