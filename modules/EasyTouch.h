#pragma once

#include <tarn/IEasyTouch.h>
#include <tarn/TarnManager.h>

namespace android {

class EasyTouch : public virtual IEasyTouch {
  public:
    explicit EasyTouch(const sp<TarnManager>& manager);

    int getEasyTouchLogInfo() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
