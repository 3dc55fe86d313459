#pragma once

#include <tarn/IBitmotionCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class BitmotionCtrl : public virtual IBitmotionCtrl {
  public:
    explicit BitmotionCtrl(const sp<TarnManager>& manager);

    bool setBrightness(int brightness) override;
    int setDevicePortEnabled(const String16& port, bool enabled) override;
    int setWan1Address(const String16& address) override;
    int setWan2Address(const String16& address) override;
    int updateFirmware(const String16& path) override;
    int setupWorkMode(int mode) override;
    int erase(unsigned int what) override;
    std::string getVersion() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
