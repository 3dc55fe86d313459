#pragma once

#include <tarn/IPcModuleCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class PcModuleCtrl : public virtual IPcModuleCtrl {
  public:
    explicit PcModuleCtrl(const sp<TarnManager>& manager);

    int getPcState() override;
    int setPcSwitchOn() override;
    int setPcSwitchOff() override;
    int setPcRecovery() override;
    int sendSerialData(unsigned char* data, int length) override;
    std::vector<_EnumPcBootMode> getSupportPcBootModeList() override;
    bool setPcBootMode(_EnumPcBootMode mode) override;
    _EnumPcBootMode getPcBootMode() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
