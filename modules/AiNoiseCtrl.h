#pragma once

#include <tarn/IAiNoiseCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class AiNoiseCtrl : public IAiNoiseCtrl {
  public:
    explicit AiNoiseCtrl(const sp<TarnManager>& manager);

    bool setAiNoise(float level) override;
    float getAiNoise() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
