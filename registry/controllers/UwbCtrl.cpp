#include <tarn/IUwbCtrl.h>

#include "protocol/Commands.h"
#include "registry/Builder.h"

using namespace android;

namespace tarnctl {

void registerUwbCtrl(std::vector<Controller>* registry) {
    Builder<IUwbCtrl>(registry, "uwb", "UwbCtrl", &ITarnManager::getUwbCtrl)
            .method("getUwbDongleVersion", CMD_GET_UWB_DONGLE_VERSION,
                    &IUwbCtrl::getUwbDongleVersion)
            .method("getUwbDongleModel", CMD_GET_UWB_DONGLE_MODEL, &IUwbCtrl::getUwbDongleModel)
            .method("delUwbRcuPairInfo", CMD_DEL_UWB_RCU_PAIR_INFO, &IUwbCtrl::delUwbRcuPairInfo)
            .method("setUwbDongleBtScanSwitch", CMD_SET_UWB_DONGLE_BT_SCAN_SWITCH,
                    &IUwbCtrl::setUwbDongleBtScanSwitch, "mode, state")
            .method("getUwbDongleScanStatus", CMD_GET_UWB_DONGLE_SCAN_STATUS,
                    &IUwbCtrl::getUwbDongleScanStatus)
            .method("getUwbDongleConnectStatus", CMD_GET_UWB_DONGLE_CONNECT_STATUS,
                    &IUwbCtrl::getUwbDongleConnectStatus)
            .method("setUwbRcuRssiThreshold", CMD_SET_UWB_RCU_RSSI_THRESHOLD,
                    &IUwbCtrl::setUwbRcuRssiThreshold, "threshold")
            .method("getUwbRcuRssiThreshold", CMD_GET_UWB_RCU_RSSI_THRESHOLD,
                    &IUwbCtrl::getUwbRcuRssiThreshold)
            .method("getUwbRcuVersion", CMD_GET_UWB_RCU_VERSION, &IUwbCtrl::getUwbRcuVersion)
            .method("getUwbRcuModel", CMD_GET_UWB_RCU_MODEL, &IUwbCtrl::getUwbRcuModel)
            .method("getUwbRcuMacAddress", CMD_GET_UWB_RCU_MAC_ADDRESS,
                    &IUwbCtrl::getUwbRcuMacAddress)
            .method("getUwbRcuBatteryLevel", CMD_GET_UWB_RCU_BATTERY_LEVEL,
                    &IUwbCtrl::getUwbRcuBatteryLevel)
            .method("setUwbRcuSensitivenessLevel", CMD_SET_UWB_RCU_SENSITIVENESS_LEVEL,
                    &IUwbCtrl::setUwbRcuSensitivenessLevel, "level")
            .method("getUwbRcuSensitivenessLevel", CMD_GET_UWB_RCU_SENSITIVENESS_LEVEL,
                    &IUwbCtrl::getUwbRcuSensitivenessLevel)
            .method("getUwbRcuSwitchStatus", CMD_GET_UWB_RCU_SWITCH_STATUS,
                    &IUwbCtrl::getUwbRcuSwitchStatus)
            .method("getUwbRcuChargeStatus", CMD_GET_UWB_RCU_CHARGE_STATUS,
                    &IUwbCtrl::getUwbRcuChargeStatus)
            .method("getUwbDongleSn", CMD_GET_UWB_DONGLE_SN, &IUwbCtrl::getUwbDongleSn)
            .method("getUwbRcuSn", CMD_GET_UWB_RCU_SN, &IUwbCtrl::getUwbRcuSn);
}

}  // namespace tarnctl
