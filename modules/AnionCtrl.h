#pragma once

#include <tarn/IAnionCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class AnionCtrl : public IAnionCtrl {
  public:
    explicit AnionCtrl(const sp<TarnManager>& manager);

    int setAnionStatus(int status) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
