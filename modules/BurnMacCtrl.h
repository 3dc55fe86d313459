#pragma once

#include <tarn/IBurnMacCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class BurnMacCtrl : public IBurnMacCtrl {
  public:
    explicit BurnMacCtrl(const sp<TarnManager>& manager);

    bool getSupportBurnMacList(std::vector<EntitySwMac>* list) override;
    bool setBurnMac(_EnumBurnMacType type, String16 mac) override;
    bool setBurnMac(_EnumBurnMacType type, unsigned char* mac, int len) override;
    String16 getBurnMac(_EnumBurnMacType type) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
