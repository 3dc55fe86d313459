#pragma once

#include <tarn/ISensorBoxCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class SensorBoxCtrl : public virtual ISensorBoxCtrl {
  public:
    explicit SensorBoxCtrl(const sp<TarnManager>& manager);

    bool getFwSensorBoxList(std::vector<EntitySensorBox>* out) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
