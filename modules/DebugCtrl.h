#pragma once

#include <tarn/IDebugCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class DebugCtrl : public IDebugCtrl {
  public:
    explicit DebugCtrl(const sp<TarnManager>& manager);

    bool getSuperRootState() override;
    bool setSuperRootState(const char* state) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
