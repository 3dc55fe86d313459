#include "modules/UwbCtrl.h"

#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@UwbCtrl"
#include "log/Log.h"

namespace android {

namespace {

/** Logs a method's result under the method's name and hands the result back. */
int logResult(const char* method, int line, int ret) {
    TarnLog(TARN_LOG_DEBUG, TARN_LOG_TAG, method, line, "[%s] ++ ret=%d\n", method, ret);
    return ret;
}

/** Reads one text; the log names the method, and the command when it failed. */
String16 readText(const sp<TarnManager>& manager, int cmd, const char* cmdName, const char* method,
                  int line) {
    TarnLog(TARN_LOG_DEBUG, TARN_LOG_TAG, method, line, "[%s] ++ \n", method);
    Parcel reply;
    const int status = manager->exeCmdSet_Parcel(cmd, &reply);
    if (status != 0) {
        TarnLog(TARN_LOG_ERROR, TARN_LOG_TAG, method, line, "exeCmdSet_Parcel:%s error! %d\n",
                cmdName, status);
        return String16();
    }
    return reply.readString16();
}

}  // namespace

UwbCtrl::UwbCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

String16 UwbCtrl::getUwbDongleVersion() {
    return readText(mTarnMgr, CMD_GET_UWB_DONGLE_VERSION, "CMD_GET_UWB_DONGLE_VERSION", __func__,
                    __LINE__);
}

String16 UwbCtrl::getUwbDongleModel() {
    return readText(mTarnMgr, CMD_GET_UWB_DONGLE_MODEL, "CMD_GET_UWB_DONGLE_MODEL", __func__,
                    __LINE__);
}

int UwbCtrl::delUwbRcuPairInfo() {
    return logResult(__func__, __LINE__, mTarnMgr->exeCmdSet_Int(CMD_DEL_UWB_RCU_PAIR_INFO));
}

int UwbCtrl::setUwbDongleBtScanSwitch(int mode, int state) {
    return logResult(__func__, __LINE__,
                     mTarnMgr->exeCmdSet_Int(CMD_SET_UWB_DONGLE_BT_SCAN_SWITCH, mode, state));
}

int UwbCtrl::getUwbDongleScanStatus() {
    return logResult(__func__, __LINE__, mTarnMgr->exeCmdSet_Int(CMD_GET_UWB_DONGLE_SCAN_STATUS));
}

int UwbCtrl::getUwbDongleConnectStatus() {
    return logResult(__func__, __LINE__,
                     mTarnMgr->exeCmdSet_Int(CMD_GET_UWB_DONGLE_CONNECT_STATUS));
}

int UwbCtrl::setUwbRcuRssiThreshold(int threshold) {
    return logResult(__func__, __LINE__,
                     mTarnMgr->exeCmdSet_Int(CMD_SET_UWB_RCU_RSSI_THRESHOLD, threshold));
}

int UwbCtrl::getUwbRcuRssiThreshold() {
    return logResult(__func__, __LINE__, mTarnMgr->exeCmdSet_Int(CMD_GET_UWB_RCU_RSSI_THRESHOLD));
}

String16 UwbCtrl::getUwbRcuVersion() {
    return readText(mTarnMgr, CMD_GET_UWB_RCU_VERSION, "CMD_GET_UWB_RCU_VERSION", __func__,
                    __LINE__);
}

String16 UwbCtrl::getUwbRcuModel() {
    return readText(mTarnMgr, CMD_GET_UWB_RCU_MODEL, "CMD_GET_UWB_RCU_MODEL", __func__, __LINE__);
}

String16 UwbCtrl::getUwbRcuMacAddress() {
    return readText(mTarnMgr, CMD_GET_UWB_RCU_MAC_ADDRESS, "CMD_GET_UWB_RCU_MAC_ADDRESS", __func__,
                    __LINE__);
}

int UwbCtrl::getUwbRcuBatteryLevel() {
    return logResult(__func__, __LINE__, mTarnMgr->exeCmdSet_Int(CMD_GET_UWB_RCU_BATTERY_LEVEL));
}

int UwbCtrl::setUwbRcuSensitivenessLevel(int level) {
    return logResult(__func__, __LINE__,
                     mTarnMgr->exeCmdSet_Int(CMD_SET_UWB_RCU_SENSITIVENESS_LEVEL, level));
}

int UwbCtrl::getUwbRcuSensitivenessLevel() {
    return logResult(__func__, __LINE__,
                     mTarnMgr->exeCmdSet_Int(CMD_GET_UWB_RCU_SENSITIVENESS_LEVEL));
}

int UwbCtrl::getUwbRcuSwitchStatus() {
    return logResult(__func__, __LINE__, mTarnMgr->exeCmdSet_Int(CMD_GET_UWB_RCU_SWITCH_STATUS));
}

int UwbCtrl::getUwbRcuChargeStatus() {
    return logResult(__func__, __LINE__, mTarnMgr->exeCmdSet_Int(CMD_GET_UWB_RCU_CHARGE_STATUS));
}

String16 UwbCtrl::getUwbDongleSn() {
    return readText(mTarnMgr, CMD_GET_UWB_DONGLE_SN, "CMD_GET_UWB_DONGLE_SN", __func__, __LINE__);
}

String16 UwbCtrl::getUwbRcuSn() {
    return readText(mTarnMgr, CMD_GET_UWB_RCU_SN, "CMD_GET_UWB_RCU_SN", __func__, __LINE__);
}

}  // namespace android
