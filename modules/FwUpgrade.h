#pragma once

#include <tarn/IFwUpgrade.h>
#include <tarn/TarnManager.h>

namespace android {

class FwUpgrade : public IFwUpgrade {
  public:
    explicit FwUpgrade(const sp<TarnManager>& manager);

    bool setFirmwareUpgrade(int type, String16 path) override;
    String16 getMcuBinNameToUp(int type) override;
    String16 getFwVersion(int type) override;
    String16 getFwOtakey(int type) override;
    String16 getFwInfoTypecList() override;
    bool getFwMcuList(std::vector<EntityFwInfoMcu>& list) override;
    String16 getFwTargetVersion(int type) override;
    String16 getFwTargetBinPath(int type) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
