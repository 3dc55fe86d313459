#pragma once

#include <tarn/IBacklightCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class BacklightCtrl : public IBacklightCtrl {
  public:
    explicit BacklightCtrl(const sp<TarnManager>& manager);

    int getScreenBrightness() override;
    int setScreenBrightness(int brightness) override;
    int getScreenMaxBrightness() override;
    int setScreenMaxBrightness(int brightness) override;
    int getScreenMinBrightness() override;
    int setScreenMinBrightness(int brightness) override;
    int getScreenRealBrightness() override;
    int setScreenRealBrightness(int brightness) override;
    int getCustomerMinBacklight() override;
    int getCustomerMaxBacklight() override;
    bool getMaxBrightnessSetEnable() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
