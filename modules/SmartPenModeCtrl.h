#pragma once

#include <tarn/ISmartPenModeCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class SmartPenModeCtrl : public virtual ISmartPenModeCtrl {
  public:
    explicit SmartPenModeCtrl(const sp<TarnManager>& manager);

    std::vector<_EnumSmartPenMode> getSupportSmartPenModeList() override;
    bool setSmartPenMode(_EnumSmartPenMode mode) override;
    _EnumSmartPenMode getSmartPenMode() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
