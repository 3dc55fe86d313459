#include "modules/NetworkCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@NetworkCtrl"
#include "log/Log.h"

namespace android {

NetworkCtrl::NetworkCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int NetworkCtrl::SetEthernetEnable(int port, bool on) {
    return mTarnMgr->exeCmdSet_Int(CMD_NETWORK_SET_ETHERNET_ENABLE, port, static_cast<int>(on));
}

int NetworkCtrl::SetEthernetNatEnable(int port, bool on) {
    return mTarnMgr->exeCmdSet_Int(CMD_NETWORK_SET_ETHERNET_NAT_ENABLE, port, static_cast<int>(on));
}

String16 NetworkCtrl::getAntennaRssi(int antenna) {
    return askForText(mTarnMgr, CMD_NETWORK_GET_ANTENNA_RSSI, antenna);
}

int NetworkCtrl::setEthernetRate(int port, int rate) {
    return mTarnMgr->exeCmdSet_Int(CMD_NETWORK_SET_ETHERNET_RATE, port, rate);
}

int NetworkCtrl::getEthernetRate(int port) {
    return mTarnMgr->exeCmdSet_Int(CMD_NETWORK_GET_ETHERNET_RATE, port);
}

int NetworkCtrl::setMcuDhcpEnable(bool on) {
    return mTarnMgr->exeCmdSet_Int(CMD_NETWORK_SET_MCU_DHCP_ENABLE, on);
}

int NetworkCtrl::setMcuDhcpIp(String16 ip) {
    // An error by its level only, and the name of another method: the text is fixed.
    TLOGE("NetworkCtrl::setDhcpIp\n");
    return sendText(mTarnMgr, CMD_NETWORK_SET_MCU_DHCP_IP, ip);
}

int NetworkCtrl::setMcuDhcpGw(String16 gateway) {
    return sendText(mTarnMgr, CMD_NETWORK_SET_MCU_DHCP_GW, gateway);
}

int NetworkCtrl::setMcuDhcpMsk(String16 mask) {
    return sendText(mTarnMgr, CMD_NETWORK_SET_MCU_DHCP_MSK, mask);
}

bool NetworkCtrl::SetWOLEnable(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_NETWORK_SET_WOL_ENABLE, on);
}

bool NetworkCtrl::GetWOLEnable() {
    return mTarnMgr->exeCmdSet_Bool(CMD_NETWORK_GET_WOL_ENABLE);
}

bool NetworkCtrl::SetWOWEnable(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_NETWORK_SET_WOW_ENABLE, on);
}

bool NetworkCtrl::GetWOWEnable() {
    return mTarnMgr->exeCmdSet_Bool(CMD_NETWORK_GET_WOW_ENABLE);
}

bool NetworkCtrl::getWifiDongleStatus() {
    return mTarnMgr->exeCmdSet_Bool(CMD_NETWORK_GET_WIFI_DONGLE_STATUS);
}

bool NetworkCtrl::setMcuToControlMonitorNetwork(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_NETWORK_SET_MCU_TO_CONTROL_MONITOR_NETWORK, on);
}

bool NetworkCtrl::disableApUsbDevice(bool disable) {
    return mTarnMgr->exeCmdSet_Bool(CMD_NETWORK_DISABLE_AP_USB_DEVICE, disable);
}

int NetworkCtrl::setVlanParams(int vid, int priority) {
    return mTarnMgr->exeCmdSet_Int(CMD_NETWORK_SET_VLAN_PARAMS, vid, priority);
}

int NetworkCtrl::getVlanParamsVid() {
    return mTarnMgr->exeCmdSet_Int(CMD_NETWORK_GET_VLAN_PARAMS_VID);
}

int NetworkCtrl::getVlanParamsVidPriority() {
    return mTarnMgr->exeCmdSet_Int(CMD_NETWORK_GET_VLAN_PARAMS_VID_PRIORITY);
}

bool NetworkCtrl::setVlanEnable(bool on) {
    return mTarnMgr->exeCmdSet_Int(CMD_NETWORK_SET_VLAN_ENABLE, on) != 0;
}

bool NetworkCtrl::getVlanEnable() {
    return mTarnMgr->exeCmdSet_Int(CMD_NETWORK_GET_VLAN_ENABLE) != 0;
}

bool NetworkCtrl::getTracerouteMessage(String16 target) {
    return sendForBoolUnlessFailed(mTarnMgr, CMD_NETWORK_GET_TRACEROUTE_MESSAGE, target);
}

int NetworkCtrl::setLldpParams(int params) {
    return mTarnMgr->exeCmdSet_Int(CMD_NETWORK_SET_LLDP_PARAMS, params);
}

int NetworkCtrl::getLldpParams() {
    return mTarnMgr->exeCmdSet_Int(CMD_NETWORK_GET_LLDP_PARAMS);
}

bool NetworkCtrl::setSharingDirection(bool direction) {
    return mTarnMgr->exeCmdSet_Bool(CMD_NETWORK_SET_SHARING_DIRECTION, direction);
}

bool NetworkCtrl::getSharingDirection() {
    return mTarnMgr->exeCmdSet_Bool(CMD_NETWORK_GET_SHARING_DIRECTION);
}

bool NetworkCtrl::setAndroidToPcSharing(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_NETWORK_SET_ANDROID_TO_PC_SHARING, on);
}

bool NetworkCtrl::getAndroidToPcSharing() {
    return mTarnMgr->exeCmdSet_Bool(CMD_NETWORK_GET_ANDROID_TO_PC_SHARING);
}

bool NetworkCtrl::setHotspotSharing(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_NETWORK_SET_HOTSPOT_SHARING, on);
}

bool NetworkCtrl::getHotspotSharing() {
    return mTarnMgr->exeCmdSet_Bool(CMD_NETWORK_GET_HOTSPOT_SHARING);
}

bool NetworkCtrl::SetWOLPCOnlyEnable(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_NETWORK_SET_WOL_PC_ONLY_ENABLE, on);
}

bool NetworkCtrl::GetWOLPCOnlyEnable() {
    return mTarnMgr->exeCmdSet_Bool(CMD_NETWORK_GET_WOL_PC_ONLY_ENABLE);
}

}  // namespace android
