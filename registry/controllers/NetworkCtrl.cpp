#include <tarn/INetworkCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerNetworkCtrl(std::vector<Controller>* registry) {
    Builder<INetworkCtrl>(registry, "network", "NetworkCtrl", &ITarnManager::getNetworkCtrl)
            .method("SetEthernetEnable", Row::CMD_NETWORK_SET_ETHERNET_ENABLE,
                    &INetworkCtrl::SetEthernetEnable, "port, on")
            .method("SetEthernetNatEnable", Row::CMD_NETWORK_SET_ETHERNET_NAT_ENABLE,
                    &INetworkCtrl::SetEthernetNatEnable, "port, on")
            .method("getAntennaRssi", Row::CMD_NETWORK_GET_ANTENNA_RSSI,
                    &INetworkCtrl::getAntennaRssi, "antenna")
            .method("setEthernetRate", Row::CMD_NETWORK_SET_ETHERNET_RATE,
                    &INetworkCtrl::setEthernetRate, "port, rate")
            .method("getEthernetRate", Row::CMD_NETWORK_GET_ETHERNET_RATE,
                    &INetworkCtrl::getEthernetRate, "port")
            .method("setMcuDhcpEnable", Row::CMD_NETWORK_SET_MCU_DHCP_ENABLE,
                    &INetworkCtrl::setMcuDhcpEnable, "on")
            .method("setMcuDhcpIp", Row::CMD_NETWORK_SET_MCU_DHCP_IP, &INetworkCtrl::setMcuDhcpIp,
                    "ip")
            .method("setMcuDhcpGw", Row::CMD_NETWORK_SET_MCU_DHCP_GW, &INetworkCtrl::setMcuDhcpGw,
                    "gateway")
            .method("setMcuDhcpMsk", Row::CMD_NETWORK_SET_MCU_DHCP_MSK,
                    &INetworkCtrl::setMcuDhcpMsk, "mask")
            .method("SetWOLEnable", Row::CMD_NETWORK_SET_WOL_ENABLE, &INetworkCtrl::SetWOLEnable,
                    "on")
            .method("GetWOLEnable", Row::CMD_NETWORK_GET_WOL_ENABLE, &INetworkCtrl::GetWOLEnable)
            .method("SetWOWEnable", Row::CMD_NETWORK_SET_WOW_ENABLE, &INetworkCtrl::SetWOWEnable,
                    "on")
            .method("GetWOWEnable", Row::CMD_NETWORK_GET_WOW_ENABLE, &INetworkCtrl::GetWOWEnable)
            .method("getWifiDongleStatus", Row::CMD_NETWORK_GET_WIFI_DONGLE_STATUS,
                    &INetworkCtrl::getWifiDongleStatus)
            .method("setMcuToControlMonitorNetwork",
                    Row::CMD_NETWORK_SET_MCU_TO_CONTROL_MONITOR_NETWORK,
                    &INetworkCtrl::setMcuToControlMonitorNetwork, "on")
            .method("disableApUsbDevice", Row::CMD_NETWORK_DISABLE_AP_USB_DEVICE,
                    &INetworkCtrl::disableApUsbDevice, "disable")
            .method("setVlanParams", Row::CMD_NETWORK_SET_VLAN_PARAMS, &INetworkCtrl::setVlanParams,
                    "vid, priority")
            .method("getVlanParamsVid", Row::CMD_NETWORK_GET_VLAN_PARAMS_VID,
                    &INetworkCtrl::getVlanParamsVid)
            .method("getVlanParamsVidPriority", Row::CMD_NETWORK_GET_VLAN_PARAMS_VID_PRIORITY,
                    &INetworkCtrl::getVlanParamsVidPriority)
            .method("setVlanEnable", Row::CMD_NETWORK_SET_VLAN_ENABLE, &INetworkCtrl::setVlanEnable,
                    "on")
            .method("getVlanEnable", Row::CMD_NETWORK_GET_VLAN_ENABLE, &INetworkCtrl::getVlanEnable)
            .method("getTracerouteMessage", Row::CMD_NETWORK_GET_TRACEROUTE_MESSAGE,
                    &INetworkCtrl::getTracerouteMessage, "target")
            .method("setLldpParams", Row::CMD_NETWORK_SET_LLDP_PARAMS, &INetworkCtrl::setLldpParams,
                    "params")
            .method("getLldpParams", Row::CMD_NETWORK_GET_LLDP_PARAMS, &INetworkCtrl::getLldpParams)
            .method("setSharingDirection", Row::CMD_NETWORK_SET_SHARING_DIRECTION,
                    &INetworkCtrl::setSharingDirection, "direction")
            .method("getSharingDirection", Row::CMD_NETWORK_GET_SHARING_DIRECTION,
                    &INetworkCtrl::getSharingDirection)
            .method("setAndroidToPcSharing", Row::CMD_NETWORK_SET_ANDROID_TO_PC_SHARING,
                    &INetworkCtrl::setAndroidToPcSharing, "on")
            .method("getAndroidToPcSharing", Row::CMD_NETWORK_GET_ANDROID_TO_PC_SHARING,
                    &INetworkCtrl::getAndroidToPcSharing)
            .method("setHotspotSharing", Row::CMD_NETWORK_SET_HOTSPOT_SHARING,
                    &INetworkCtrl::setHotspotSharing, "on")
            .method("getHotspotSharing", Row::CMD_NETWORK_GET_HOTSPOT_SHARING,
                    &INetworkCtrl::getHotspotSharing)
            .method("SetWOLPCOnlyEnable", Row::CMD_NETWORK_SET_WOL_PC_ONLY_ENABLE,
                    &INetworkCtrl::SetWOLPCOnlyEnable, "on")
            .method("GetWOLPCOnlyEnable", Row::CMD_NETWORK_GET_WOL_PC_ONLY_ENABLE,
                    &INetworkCtrl::GetWOLPCOnlyEnable);
}

}  // namespace tarn::registry
