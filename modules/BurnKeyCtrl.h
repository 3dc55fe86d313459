#pragma once

#include <tarn/IBurnKeyCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class BurnKeyCtrl : public IBurnKeyCtrl {
  public:
    explicit BurnKeyCtrl(const sp<TarnManager>& manager);

    bool getSupportBurnKeyList(std::vector<EntitySwKey>* list) override;
    bool setBurnKey(_EnumBurnKeyType type, String16 key) override;
    bool setCleanBurnKey(_EnumBurnKeyType type) override;
    String16 getBurnKey(_EnumBurnKeyType type) override;
    String16 getBurnKeyVersion(_EnumBurnKeyType type) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
