#pragma once

#include <tarn/IFwTouchCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class FwTouchCtrl : public virtual IFwTouchCtrl {
  public:
    explicit FwTouchCtrl(const sp<TarnManager>& manager);

    bool getFwTouchList(std::vector<EntityFwTouch>* out) override;
    bool getFwTouchDriverInfoList(std::vector<EntityFwTouchDriver>* out) override;
    bool getTouchFwDataList(std::vector<TouchFwDataList>* out) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
