#pragma once

#include <tarn/ITeaDspCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class TeaDspCtrl : public ITeaDspCtrl {
  public:
    explicit TeaDspCtrl(const sp<TarnManager>& manager);

    bool setTeaMicAlgorithm(bool on) override;
    bool getTeaMicAlgorithm() override;
    bool getDeviceStatus() override;
    std::string GetDeviceInformation() override;
    int GetDeviceMute(int device) override;
    int SetDevicePoeSinkRouteMode(int mode) override;
    int GetDevicePoeSinkRouteMode() override;
    int DevicePortAttachStateUpdate(const char* port, int type, const char* device, bool attached,
                                    const char* extra) override;
    std::string GetAllDeviceInformation() override;
    int SetDeviceLineoutSinkRouteMode(int mode) override;
    int GetDeviceLineoutSinkRouteMode() override;
    std::string GetDevicePortAttachInformation() override;
    int SetDeviceOffHook(int state) override;
    int SetDeviceMicrophoneOverallMute(int mute) override;
    int GetDeviceMicrophoneOverallMute() override;
    int SetDeviceRingCall(int state) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
