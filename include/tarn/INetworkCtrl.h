#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

/**
 * The board's wired network, wake-on-LAN, VLAN and network sharing.
 *
 * Any thread may call; every call blocks for one exchange with the service. Arguments are not
 * checked: their meaning is the service's. An int result is the service's status word, -1 when the
 * command failed; unless said otherwise, a bool result is false when the command failed.
 * Addresses travel as text and are not parsed here.
 */
class INetworkCtrl : public virtual RefBase {
  public:
    /** Switches one Ethernet port. */
    virtual int SetEthernetEnable(int port, bool on) = 0;

    /** Switches NAT on one Ethernet port. */
    virtual int SetEthernetNatEnable(int port, bool on) = 0;

    /**
     * Returns the signal strength of one antenna as text that the service formats; empty when the
     * command failed.
     */
    virtual String16 getAntennaRssi(int antenna) = 0;

    /** Sets the link rate of one Ethernet port. */
    virtual int setEthernetRate(int port, int rate) = 0;

    /** Returns the link rate of one Ethernet port. */
    virtual int getEthernetRate(int port) = 0;

    /** Switches the microcontroller's DHCP client. */
    virtual int setMcuDhcpEnable(bool on) = 0;

    /** Sets the microcontroller's static address. Every call writes an error line to the log. */
    virtual int setMcuDhcpIp(String16 ip) = 0;

    /** Sets the microcontroller's gateway. */
    virtual int setMcuDhcpGw(String16 gateway) = 0;

    /** Sets the microcontroller's network mask. */
    virtual int setMcuDhcpMsk(String16 mask) = 0;

    /** Switches wake-on-LAN; true when the service says so. */
    virtual bool SetWOLEnable(bool on) = 0;

    /** Tells whether wake-on-LAN is on. */
    virtual bool GetWOLEnable() = 0;

    /** Switches wake-on-wireless; true when the service says so. */
    virtual bool SetWOWEnable(bool on) = 0;

    /** Tells whether wake-on-wireless is on. */
    virtual bool GetWOWEnable() = 0;

    /** Returns the Wi-Fi dongle's service-defined status. */
    virtual bool getWifiDongleStatus() = 0;

    /** Lets the microcontroller control the monitor network; true when the service says so. */
    virtual bool setMcuToControlMonitorNetwork(bool on) = 0;

    /** Disables the AP's USB device, or enables it with false; true when the service says so. */
    virtual bool disableApUsbDevice(bool disable) = 0;

    /** Sets the VLAN identifier and priority. */
    virtual int setVlanParams(int vid, int priority) = 0;

    /** Returns the VLAN identifier. */
    virtual int getVlanParamsVid() = 0;

    /** Returns the VLAN priority. */
    virtual int getVlanParamsVidPriority() = 0;

    /** Switches VLAN; true for any status but 0, a failed command included. */
    virtual bool setVlanEnable(bool on) = 0;

    /** Tells whether VLAN is on; true for any status but 0, a failed command included. */
    virtual bool getVlanEnable() = 0;

    /**
     * Runs a traceroute to target; true when the service says so. The output is not returned.
     */
    virtual bool getTracerouteMessage(String16 target) = 0;

    /** Sets the LLDP parameters. */
    virtual int setLldpParams(int params) = 0;

    /** Returns the LLDP parameters. */
    virtual int getLldpParams() = 0;

    /** Sets the direction of network sharing; true when the service says so. */
    virtual bool setSharingDirection(bool direction) = 0;

    /** Returns the direction of network sharing. */
    virtual bool getSharingDirection() = 0;

    /** Switches sharing from Android to the PC module; true when the service says so. */
    virtual bool setAndroidToPcSharing(bool on) = 0;

    /** Tells whether Android shares its network with the PC module. */
    virtual bool getAndroidToPcSharing() = 0;

    /** Switches sharing over the hotspot; true when the service says so. */
    virtual bool setHotspotSharing(bool on) = 0;

    /** Tells whether the network is shared over the hotspot. */
    virtual bool getHotspotSharing() = 0;

    /** Switches wake-on-LAN for the PC module only; true when the service says so. */
    virtual bool SetWOLPCOnlyEnable(bool on) = 0;

    /** Tells whether wake-on-LAN is on for the PC module only. */
    virtual bool GetWOLPCOnlyEnable() = 0;

    virtual ~INetworkCtrl() = default;
};

}  // namespace android
