#pragma once

#include <tarn/ILightEffectCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class LightEffectCtrl : public ILightEffectCtrl {
  public:
    explicit LightEffectCtrl(const sp<TarnManager>& manager);

    bool setLightEffectMode(_EnumLightDeviceType device, _EnumLightEffectMode mode) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
