#pragma once

#include <tarn/IPmsCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class PmsCtrl : public IPmsCtrl {
  public:
    explicit PmsCtrl(const sp<TarnManager>& manager);

    int getWakeupSrc() override;
    int getWakeupSrcFromUboot() override;
    String16 readAssetData(int a, int b) override;
    bool setPmsWakeupSources(const std::vector<_TarnEnumInputSourceId_>& sources) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
