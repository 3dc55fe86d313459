#include <tarn/INetworkCtrl.h>

#include "protocol/Commands.h"
#include "registry/Builder.h"

using namespace android;

namespace tarnctl {

void registerNetworkCtrl(std::vector<Controller>* registry) {
    Builder<INetworkCtrl>(registry, "network", "NetworkCtrl", &ITarnManager::getNetworkCtrl)
            .method("SetEthernetEnable", CMD_NETWORK_SET_ETHERNET_ENABLE,
                    &INetworkCtrl::SetEthernetEnable, "port, on")
            .method("SetEthernetNatEnable", CMD_NETWORK_SET_ETHERNET_NAT_ENABLE,
                    &INetworkCtrl::SetEthernetNatEnable, "port, on")
            .method("getAntennaRssi", CMD_NETWORK_GET_ANTENNA_RSSI, &INetworkCtrl::getAntennaRssi,
                    "antenna")
            .method("setEthernetRate", CMD_NETWORK_SET_ETHERNET_RATE,
                    &INetworkCtrl::setEthernetRate, "port, rate")
            .method("getEthernetRate", CMD_NETWORK_GET_ETHERNET_RATE,
                    &INetworkCtrl::getEthernetRate, "port")
            .method("setMcuDhcpEnable", CMD_NETWORK_SET_MCU_DHCP_ENABLE,
                    &INetworkCtrl::setMcuDhcpEnable, "on")
            .method("setMcuDhcpIp", CMD_NETWORK_SET_MCU_DHCP_IP, &INetworkCtrl::setMcuDhcpIp, "ip")
            .method("setMcuDhcpGw", CMD_NETWORK_SET_MCU_DHCP_GW, &INetworkCtrl::setMcuDhcpGw,
                    "gateway")
            .method("setMcuDhcpMsk", CMD_NETWORK_SET_MCU_DHCP_MSK, &INetworkCtrl::setMcuDhcpMsk,
                    "mask")
            .method("SetWOLEnable", CMD_NETWORK_SET_WOL_ENABLE, &INetworkCtrl::SetWOLEnable, "on")
            .method("GetWOLEnable", CMD_NETWORK_GET_WOL_ENABLE, &INetworkCtrl::GetWOLEnable)
            .method("SetWOWEnable", CMD_NETWORK_SET_WOW_ENABLE, &INetworkCtrl::SetWOWEnable, "on")
            .method("GetWOWEnable", CMD_NETWORK_GET_WOW_ENABLE, &INetworkCtrl::GetWOWEnable)
            .method("getWifiDongleStatus", CMD_NETWORK_GET_WIFI_DONGLE_STATUS,
                    &INetworkCtrl::getWifiDongleStatus)
            .method("setMcuToControlMonitorNetwork", CMD_NETWORK_SET_MCU_TO_CONTROL_MONITOR_NETWORK,
                    &INetworkCtrl::setMcuToControlMonitorNetwork, "on")
            .method("disableApUsbDevice", CMD_NETWORK_DISABLE_AP_USB_DEVICE,
                    &INetworkCtrl::disableApUsbDevice, "disable")
            .method("setVlanParams", CMD_NETWORK_SET_VLAN_PARAMS, &INetworkCtrl::setVlanParams,
                    "vid, priority")
            .method("getVlanParamsVid", CMD_NETWORK_GET_VLAN_PARAMS_VID,
                    &INetworkCtrl::getVlanParamsVid)
            .method("getVlanParamsVidPriority", CMD_NETWORK_GET_VLAN_PARAMS_VID_PRIORITY,
                    &INetworkCtrl::getVlanParamsVidPriority)
            .method("setVlanEnable", CMD_NETWORK_SET_VLAN_ENABLE, &INetworkCtrl::setVlanEnable,
                    "on")
            .method("getVlanEnable", CMD_NETWORK_GET_VLAN_ENABLE, &INetworkCtrl::getVlanEnable)
            .method("getTracerouteMessage", CMD_NETWORK_GET_TRACEROUTE_MESSAGE,
                    &INetworkCtrl::getTracerouteMessage, "target")
            .method("setLldpParams", CMD_NETWORK_SET_LLDP_PARAMS, &INetworkCtrl::setLldpParams,
                    "params")
            .method("getLldpParams", CMD_NETWORK_GET_LLDP_PARAMS, &INetworkCtrl::getLldpParams)
            .method("setSharingDirection", CMD_NETWORK_SET_SHARING_DIRECTION,
                    &INetworkCtrl::setSharingDirection, "direction")
            .method("getSharingDirection", CMD_NETWORK_GET_SHARING_DIRECTION,
                    &INetworkCtrl::getSharingDirection)
            .method("setAndroidToPcSharing", CMD_NETWORK_SET_ANDROID_TO_PC_SHARING,
                    &INetworkCtrl::setAndroidToPcSharing, "on")
            .method("getAndroidToPcSharing", CMD_NETWORK_GET_ANDROID_TO_PC_SHARING,
                    &INetworkCtrl::getAndroidToPcSharing)
            .method("setHotspotSharing", CMD_NETWORK_SET_HOTSPOT_SHARING,
                    &INetworkCtrl::setHotspotSharing, "on")
            .method("getHotspotSharing", CMD_NETWORK_GET_HOTSPOT_SHARING,
                    &INetworkCtrl::getHotspotSharing)
            .method("SetWOLPCOnlyEnable", CMD_NETWORK_SET_WOL_PC_ONLY_ENABLE,
                    &INetworkCtrl::SetWOLPCOnlyEnable, "on")
            .method("GetWOLPCOnlyEnable", CMD_NETWORK_GET_WOL_PC_ONLY_ENABLE,
                    &INetworkCtrl::GetWOLPCOnlyEnable);
}

}  // namespace tarnctl
