#include <tarn/INetworkCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerNetworkCtrl(std::vector<Controller>* registry) {
    Builder<INetworkCtrl> builder(registry, "network", "NetworkCtrl",
                                  &ITarnManager::getNetworkCtrl);
    METHOD(SetEthernetEnable, CMD_NETWORK_SET_ETHERNET_ENABLE);
    METHOD(SetEthernetNatEnable, CMD_NETWORK_SET_ETHERNET_NAT_ENABLE);
    METHOD(getAntennaRssi, CMD_NETWORK_GET_ANTENNA_RSSI);
    METHOD(setEthernetRate, CMD_NETWORK_SET_ETHERNET_RATE);
    METHOD(getEthernetRate, CMD_NETWORK_GET_ETHERNET_RATE);
    METHOD(setMcuDhcpEnable, CMD_NETWORK_SET_MCU_DHCP_ENABLE);
    METHOD(setMcuDhcpIp, CMD_NETWORK_SET_MCU_DHCP_IP);
    METHOD(setMcuDhcpGw, CMD_NETWORK_SET_MCU_DHCP_GW);
    METHOD(setMcuDhcpMsk, CMD_NETWORK_SET_MCU_DHCP_MSK);
    METHOD(SetWOLEnable, CMD_NETWORK_SET_WOL_ENABLE);
    METHOD(GetWOLEnable, CMD_NETWORK_GET_WOL_ENABLE);
    METHOD(SetWOWEnable, CMD_NETWORK_SET_WOW_ENABLE);
    METHOD(GetWOWEnable, CMD_NETWORK_GET_WOW_ENABLE);
    METHOD(getWifiDongleStatus, CMD_NETWORK_GET_WIFI_DONGLE_STATUS);
    METHOD(setMcuToControlMonitorNetwork, CMD_NETWORK_SET_MCU_TO_CONTROL_MONITOR_NETWORK);
    METHOD(disableApUsbDevice, CMD_NETWORK_DISABLE_AP_USB_DEVICE);
    METHOD(setVlanParams, CMD_NETWORK_SET_VLAN_PARAMS);
    METHOD(getVlanParamsVid, CMD_NETWORK_GET_VLAN_PARAMS_VID);
    METHOD(getVlanParamsVidPriority, CMD_NETWORK_GET_VLAN_PARAMS_VID_PRIORITY);
    METHOD(setVlanEnable, CMD_NETWORK_SET_VLAN_ENABLE);
    METHOD(getVlanEnable, CMD_NETWORK_GET_VLAN_ENABLE);
    METHOD(getTracerouteMessage, CMD_NETWORK_GET_TRACEROUTE_MESSAGE);
    METHOD(setLldpParams, CMD_NETWORK_SET_LLDP_PARAMS);
    METHOD(getLldpParams, CMD_NETWORK_GET_LLDP_PARAMS);
    METHOD(setSharingDirection, CMD_NETWORK_SET_SHARING_DIRECTION);
    METHOD(getSharingDirection, CMD_NETWORK_GET_SHARING_DIRECTION);
    METHOD(setAndroidToPcSharing, CMD_NETWORK_SET_ANDROID_TO_PC_SHARING);
    METHOD(getAndroidToPcSharing, CMD_NETWORK_GET_ANDROID_TO_PC_SHARING);
    METHOD(setHotspotSharing, CMD_NETWORK_SET_HOTSPOT_SHARING);
    METHOD(getHotspotSharing, CMD_NETWORK_GET_HOTSPOT_SHARING);
    METHOD(SetWOLPCOnlyEnable, CMD_NETWORK_SET_WOL_PC_ONLY_ENABLE);
    METHOD(GetWOLPCOnlyEnable, CMD_NETWORK_GET_WOL_PC_ONLY_ENABLE);
}

}  // namespace tarn::registry
