#pragma once

#include <tarn/IRemoteCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class RemoteCtrl : public virtual IRemoteCtrl {
  public:
    explicit RemoteCtrl(const sp<TarnManager>& manager);

    bool disableRemoteCtrl() override;
    bool enableRemoteCtrl() override;
    String16 getParameter(String16 key) override;
    bool setParameter(String16 key, String16 value) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
