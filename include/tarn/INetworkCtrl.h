#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

/**
 * The board's network: Ethernet ports, the microcontroller's address, wake-up over the network,
 * VLAN, LLDP and network sharing.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns -1, false or an empty text, unless noted. An int result is the service's status word;
 * unless noted, a bool result is the service's answer. Arguments are passed on unchecked: addresses
 * travel as text and are not parsed.
 */
class TARN_EXPORT INetworkCtrl : public virtual RefBase {
  public:
    /** Switches one Ethernet port; port numbers are service-defined. */
    virtual int SetEthernetEnable(int port, bool on) = 0;

    /** Switches address translation (NAT) on one Ethernet port. */
    virtual int SetEthernetNatEnable(int port, bool on) = 0;

    /** Returns the signal strength of one antenna as text; number and form are service-defined. */
    virtual String16 getAntennaRssi(int antenna) = 0;

    /** Sets the link rate of one port; its unit is service-defined. */
    virtual int setEthernetRate(int port, int rate) = 0;

    /** Returns the link rate of one port, in the unit of setEthernetRate(). */
    virtual int getEthernetRate(int port) = 0;

    /** Switches the DHCP client of the board's microcontroller. */
    virtual int setMcuDhcpEnable(bool on) = 0;

    /** Sets the microcontroller's static address. Every call logs an error line. */
    virtual int setMcuDhcpIp(String16 ip) = 0;

    /** Sets the microcontroller's gateway address. */
    virtual int setMcuDhcpGw(String16 gateway) = 0;

    /** Sets the microcontroller's network mask. */
    virtual int setMcuDhcpMsk(String16 mask) = 0;

    /** Switches wake-on-LAN; SetWOLPCOnlyEnable() is for the PC module alone. */
    virtual bool SetWOLEnable(bool on) = 0;

    /** True when wake-on-LAN is on. */
    virtual bool GetWOLEnable() = 0;

    /** Switches wake-on-wireless. */
    virtual bool SetWOWEnable(bool on) = 0;

    /** True when wake-on-wireless is on. */
    virtual bool GetWOWEnable() = 0;

    /** Returns the status of the Wi-Fi dongle; what true means is service-defined. */
    virtual bool getWifiDongleStatus() = 0;

    /** Lets the microcontroller control the monitor network, or takes that back. */
    virtual bool setMcuToControlMonitorNetwork(bool on) = 0;

    /** True disables the AP's USB device, false enables it. */
    virtual bool disableApUsbDevice(bool disable) = 0;

    /** Sets VLAN identifier and priority in one command; each has a getter of its own. */
    virtual int setVlanParams(int vid, int priority) = 0;

    /** Returns the VLAN identifier that setVlanParams() sets. */
    virtual int getVlanParamsVid() = 0;

    /** Returns the VLAN priority that setVlanParams() sets. */
    virtual int getVlanParamsVidPriority() = 0;

    /** Switches VLAN. True when the status is not 0, so also when the call failed. */
    virtual bool setVlanEnable(bool on) = 0;

    /**
     * Sends the same command as setVlanEnable(), without an argument. True when the status is not
     * 0, so also when the call failed.
     */
    virtual bool getVlanEnable() = 0;

    /** Runs a traceroute to target. Its output is not returned, only the service's answer. */
    virtual bool getTracerouteMessage(String16 target) = 0;

    /** Sets the LLDP parameters, one number in a service-defined encoding. */
    virtual int setLldpParams(int params) = 0;

    /** Returns the LLDP parameters in the same encoding. */
    virtual int getLldpParams() = 0;

    /** Sets the direction of network sharing; which one is true is service-defined. */
    virtual bool setSharingDirection(bool direction) = 0;

    /** Returns the direction that setSharingDirection() sets. */
    virtual bool getSharingDirection() = 0;

    /** Switches sharing of Android's network with the PC module. */
    virtual bool setAndroidToPcSharing(bool on) = 0;

    /** True when Android shares its network with the PC module. */
    virtual bool getAndroidToPcSharing() = 0;

    /** Switches sharing of the network over the hotspot. */
    virtual bool setHotspotSharing(bool on) = 0;

    /** True when the network is shared over the hotspot. */
    virtual bool getHotspotSharing() = 0;

    /** Switches wake-on-LAN for the PC module alone. */
    virtual bool SetWOLPCOnlyEnable(bool on) = 0;

    /** True when wake-on-LAN is on for the PC module alone. */
    virtual bool GetWOLPCOnlyEnable() = 0;

    virtual ~INetworkCtrl() = default;
};

}  // namespace android
