#pragma once

#include <tarn/ISuspendCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class SuspendCtrl : public ISuspendCtrl {
  public:
    explicit SuspendCtrl(const sp<TarnManager>& manager);

    bool getSuspendStatus() override;
    int setSuspendStatus(bool on) override;
    bool getFakeStandyStatus() override;
    int setFakeStandyStatus(bool on) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
