#pragma once

#include <tarn/ISoundScreenAngleCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class SoundScreenAngleCtrl : public ISoundScreenAngleCtrl {
  public:
    explicit SoundScreenAngleCtrl(const sp<TarnManager>& manager);

    bool setSoundScreenAngle(int first, int second) override;
    SoundScreenAngle getSoundScreenAngle() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
