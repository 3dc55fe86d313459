#include "modules/XbugCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@XbugCtrl"
#include "log/Log.h"

namespace android {

XbugCtrl::XbugCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int XbugCtrl::setTarnServiceLogLevel(_TARN_LOG_PRIO_E_ level) {
    return mTarnMgr->exeCmdSet_Int(CMD_XBUG_SET_SERVICE_LOG_LEVEL, static_cast<int>(level));
}

int XbugCtrl::getTarnServiceLogLevel(int which) {
    return mTarnMgr->exeCmdSet_Int(CMD_XBUG_GET_SERVICE_LOG_LEVEL, which);
}

bool XbugCtrl::sendMcuCmdDumpZUNTLog() {
    return mTarnMgr->exeCmdSet_Bool(CMD_XBUG_DUMP_MCU_LOG);
}

int XbugCtrl::setTarnFuntionChkBaseTime(int baseTime) {
    return mTarnMgr->exeCmdSet_Int(CMD_XBUG_SET_FUNCTION_CHECK_BASE_TIME, baseTime);
}

int XbugCtrl::getTarnFuntionChkBaseTime() {
    return mTarnMgr->exeCmdSet_Int(CMD_XBUG_GET_FUNCTION_CHECK_BASE_TIME);
}

int XbugCtrl::getTarnFuntionTimeOutList() {
    return mTarnMgr->exeCmdSet_Int(CMD_XBUG_GET_FUNCTION_TIMEOUT_LIST);
}

std::string XbugCtrl::getNodeInfo(std::string node) {
    TLOGD("XbugCtrl::getNodeInfo");
    Parcel request;
    request.writeString16(String16(node.data(), node.size()));
    Parcel reply;
    mTarnMgr->exeCmdSet_Parcel(CMD_XBUG_GET_NODE_INFO, request, &reply);
    return readUtf8(reply);
}

}  // namespace android
