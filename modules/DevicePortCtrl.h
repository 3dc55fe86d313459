#pragma once

#include <tarn/IDevicePortCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class DevicePortCtrl : public IDevicePortCtrl {
  public:
    explicit DevicePortCtrl(const sp<TarnManager>& manager);

    int setDevicePortEnabled(char* port, bool enabled) override;
    bool getDevicePortEnabled(char* port) override;
    int getDevicePortList(std::vector<String16>& ports) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
