#pragma once

#include <tarn/IIoBoxCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class IoBoxCtrl : public virtual IIoBoxCtrl {
  public:
    explicit IoBoxCtrl(const sp<TarnManager>& manager);

    int getConnectStatus(int box) override;
    bool getFwIoBoxList(std::vector<EntityFwIoBox>* out) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
