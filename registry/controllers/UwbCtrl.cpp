#include <tarn/IUwbCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerUwbCtrl(std::vector<Controller>* registry) {
    Builder<IUwbCtrl>(registry, "uwb", "UwbCtrl", &ITarnManager::getUwbCtrl)
            .method("getUwbDongleVersion", Row::CMD_GET_UWB_DONGLE_VERSION,
                    &IUwbCtrl::getUwbDongleVersion)
            .method("getUwbDongleModel", Row::CMD_GET_UWB_DONGLE_MODEL,
                    &IUwbCtrl::getUwbDongleModel)
            .method("delUwbRcuPairInfo", Row::CMD_DEL_UWB_RCU_PAIR_INFO,
                    &IUwbCtrl::delUwbRcuPairInfo)
            .method("setUwbDongleBtScanSwitch", Row::CMD_SET_UWB_DONGLE_BT_SCAN_SWITCH,
                    &IUwbCtrl::setUwbDongleBtScanSwitch, "mode, state")
            .method("getUwbDongleScanStatus", Row::CMD_GET_UWB_DONGLE_SCAN_STATUS,
                    &IUwbCtrl::getUwbDongleScanStatus)
            .method("getUwbDongleConnectStatus", Row::CMD_GET_UWB_DONGLE_CONNECT_STATUS,
                    &IUwbCtrl::getUwbDongleConnectStatus)
            .method("setUwbRcuRssiThreshold", Row::CMD_SET_UWB_RCU_RSSI_THRESHOLD,
                    &IUwbCtrl::setUwbRcuRssiThreshold, "threshold")
            .method("getUwbRcuRssiThreshold", Row::CMD_GET_UWB_RCU_RSSI_THRESHOLD,
                    &IUwbCtrl::getUwbRcuRssiThreshold)
            .method("getUwbRcuVersion", Row::CMD_GET_UWB_RCU_VERSION, &IUwbCtrl::getUwbRcuVersion)
            .method("getUwbRcuModel", Row::CMD_GET_UWB_RCU_MODEL, &IUwbCtrl::getUwbRcuModel)
            .method("getUwbRcuMacAddress", Row::CMD_GET_UWB_RCU_MAC_ADDRESS,
                    &IUwbCtrl::getUwbRcuMacAddress)
            .method("getUwbRcuBatteryLevel", Row::CMD_GET_UWB_RCU_BATTERY_LEVEL,
                    &IUwbCtrl::getUwbRcuBatteryLevel)
            .method("setUwbRcuSensitivenessLevel", Row::CMD_SET_UWB_RCU_SENSITIVENESS_LEVEL,
                    &IUwbCtrl::setUwbRcuSensitivenessLevel, "level")
            .method("getUwbRcuSensitivenessLevel", Row::CMD_GET_UWB_RCU_SENSITIVENESS_LEVEL,
                    &IUwbCtrl::getUwbRcuSensitivenessLevel)
            .method("getUwbRcuSwitchStatus", Row::CMD_GET_UWB_RCU_SWITCH_STATUS,
                    &IUwbCtrl::getUwbRcuSwitchStatus)
            .method("getUwbRcuChargeStatus", Row::CMD_GET_UWB_RCU_CHARGE_STATUS,
                    &IUwbCtrl::getUwbRcuChargeStatus)
            .method("getUwbDongleSn", Row::CMD_GET_UWB_DONGLE_SN, &IUwbCtrl::getUwbDongleSn)
            .method("getUwbRcuSn", Row::CMD_GET_UWB_RCU_SN, &IUwbCtrl::getUwbRcuSn);
}

}  // namespace tarn::registry
