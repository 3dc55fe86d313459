#pragma once

#include <tarn/IUwbCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class UwbCtrl : public IUwbCtrl {
  public:
    explicit UwbCtrl(const sp<TarnManager>& manager);

    String16 getUwbDongleVersion() override;
    String16 getUwbDongleModel() override;
    int delUwbRcuPairInfo() override;
    int setUwbDongleBtScanSwitch(int mode, int state) override;
    int getUwbDongleScanStatus() override;
    int getUwbDongleConnectStatus() override;
    int setUwbRcuRssiThreshold(int threshold) override;
    int getUwbRcuRssiThreshold() override;
    String16 getUwbRcuVersion() override;
    String16 getUwbRcuModel() override;
    String16 getUwbRcuMacAddress() override;
    int getUwbRcuBatteryLevel() override;
    int setUwbRcuSensitivenessLevel(int level) override;
    int getUwbRcuSensitivenessLevel() override;
    int getUwbRcuSwitchStatus() override;
    int getUwbRcuChargeStatus() override;
    String16 getUwbDongleSn() override;
    String16 getUwbRcuSn() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
