#pragma once

#include <tarn/IVgaAdjust.h>
#include <tarn/TarnManager.h>

namespace android {

class VgaAdjust : public IVgaAdjust {
  public:
    explicit VgaAdjust(const sp<TarnManager>& manager);

    int setvgaAdjustData(int item, int value) override;
    int getvgaAdjustData(int item) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
