#pragma once

#include <tarn/INetworkCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class NetworkCtrl : public INetworkCtrl {
  public:
    explicit NetworkCtrl(const sp<TarnManager>& manager);

    int SetEthernetEnable(int port, bool on) override;
    int SetEthernetNatEnable(int port, bool on) override;
    String16 getAntennaRssi(int antenna) override;
    int setEthernetRate(int port, int rate) override;
    int getEthernetRate(int port) override;
    int setMcuDhcpEnable(bool on) override;
    int setMcuDhcpIp(String16 ip) override;
    int setMcuDhcpGw(String16 gateway) override;
    int setMcuDhcpMsk(String16 mask) override;
    bool SetWOLEnable(bool on) override;
    bool GetWOLEnable() override;
    bool SetWOWEnable(bool on) override;
    bool GetWOWEnable() override;
    bool getWifiDongleStatus() override;
    bool setMcuToControlMonitorNetwork(bool on) override;
    bool disableApUsbDevice(bool disable) override;
    int setVlanParams(int vid, int priority) override;
    int getVlanParamsVid() override;
    int getVlanParamsVidPriority() override;
    bool setVlanEnable(bool on) override;
    bool getVlanEnable() override;
    bool getTracerouteMessage(String16 target) override;
    int setLldpParams(int params) override;
    int getLldpParams() override;
    bool setSharingDirection(bool direction) override;
    bool getSharingDirection() override;
    bool setAndroidToPcSharing(bool on) override;
    bool getAndroidToPcSharing() override;
    bool setHotspotSharing(bool on) override;
    bool getHotspotSharing() override;
    bool SetWOLPCOnlyEnable(bool on) override;
    bool GetWOLPCOnlyEnable() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
