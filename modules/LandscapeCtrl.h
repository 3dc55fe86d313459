#pragma once

#include <tarn/ILandscapeCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class LandscapeCtrl : public virtual ILandscapeCtrl {
  public:
    explicit LandscapeCtrl(const sp<TarnManager>& manager);

    bool setLandscapeAppList(std::vector<std::string> apps) override;
    std::vector<std::string> getLandscapeAppList() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
