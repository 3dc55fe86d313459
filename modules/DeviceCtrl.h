#pragma once

#include <tarn/IDeviceCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class DeviceCtrl : public IDeviceCtrl {
  public:
    explicit DeviceCtrl(const sp<TarnManager>& manager);

    int getDeviceList() override;
    int getSecondDeviceList() override;
    int getThirdDeviceList() override;
    String16 getBoardName() override;
    String16 getModelName() override;
    int setUsbSwitchForSide(int host) override;
    int getUsbSwitchForSide() override;
    int setUsbSwitchForAll(int host) override;
    int getUsbSwitchForAll() override;
    int setUsbSwitchForTouchIn(int host) override;
    int getUsbSwitchForTouchIn() override;
    int setUsbSwitchForPipTouch(int host) override;
    int getUsbSwitchForPipTouch() override;
    int ctrlDevicePower(int device, int state) override;
    int getUsbPowerStatus() override;
    bool setUsbPowerStatus(_EnumUsbPowerStatus status) override;
    String16 getNfcTagMsg() override;
    bool setNfcTagMsg(String16 msg) override;
    bool setUsbSwFollowConfig(_EnumUsbSWFollowConfig config) override;
    int getUsbSwFollowConfig() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
