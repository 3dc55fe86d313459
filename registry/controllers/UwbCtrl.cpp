#include <tarn/IUwbCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerUwbCtrl(std::vector<Controller>* registry) {
    Builder<IUwbCtrl> builder(registry, "uwb", "UwbCtrl", &ITarnManager::getUwbCtrl);
    METHOD(getUwbDongleVersion, CMD_GET_UWB_DONGLE_VERSION);
    METHOD(getUwbDongleModel, CMD_GET_UWB_DONGLE_MODEL);
    METHOD(delUwbRcuPairInfo, CMD_DEL_UWB_RCU_PAIR_INFO);
    METHOD(setUwbDongleBtScanSwitch, CMD_SET_UWB_DONGLE_BT_SCAN_SWITCH);
    METHOD(getUwbDongleScanStatus, CMD_GET_UWB_DONGLE_SCAN_STATUS);
    METHOD(getUwbDongleConnectStatus, CMD_GET_UWB_DONGLE_CONNECT_STATUS);
    METHOD(setUwbRcuRssiThreshold, CMD_SET_UWB_RCU_RSSI_THRESHOLD);
    METHOD(getUwbRcuRssiThreshold, CMD_GET_UWB_RCU_RSSI_THRESHOLD);
    METHOD(getUwbRcuVersion, CMD_GET_UWB_RCU_VERSION);
    METHOD(getUwbRcuModel, CMD_GET_UWB_RCU_MODEL);
    METHOD(getUwbRcuMacAddress, CMD_GET_UWB_RCU_MAC_ADDRESS);
    METHOD(getUwbRcuBatteryLevel, CMD_GET_UWB_RCU_BATTERY_LEVEL);
    METHOD(setUwbRcuSensitivenessLevel, CMD_SET_UWB_RCU_SENSITIVENESS_LEVEL);
    METHOD(getUwbRcuSensitivenessLevel, CMD_GET_UWB_RCU_SENSITIVENESS_LEVEL);
    METHOD(getUwbRcuSwitchStatus, CMD_GET_UWB_RCU_SWITCH_STATUS);
    METHOD(getUwbRcuChargeStatus, CMD_GET_UWB_RCU_CHARGE_STATUS);
    METHOD(getUwbDongleSn, CMD_GET_UWB_DONGLE_SN);
    METHOD(getUwbRcuSn, CMD_GET_UWB_RCU_SN);
}

}  // namespace tarn::registry
