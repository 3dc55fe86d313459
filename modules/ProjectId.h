#pragma once

#include <tarn/IProjectId.h>
#include <tarn/TarnManager.h>

namespace android {

class ProjectId : public IProjectId {
  public:
    explicit ProjectId(const sp<TarnManager>& manager);

    int setProjectIdByIndex(_EnumProjectId_ index) override;
    _EnumProjectId_ getProjectIdIndex() override;
    int getProjectIdBacklightMax() override;
    int getProjectIdBacklightMin() override;
    int getProjectIdPqBcshCfgs(Parcel* cfgs) override;
    int getProjectIdPqWBCfgs(Parcel* cfgs) override;
    int getProjectIdPqSPGCfgs(Parcel* cfgs) override;
    int getProjectIdIniPraserDone() override;
    int getProjectIdDbcCfgs(Parcel* cfgs) override;
    int getProjectIdDcrCfgs(Parcel* cfgs) override;
    int getProjectIdLogoCfgs(Parcel* cfgs) override;
    int getProjectIdBootVideoCfgs(Parcel* cfgs) override;
    int getProjectIdBootAnimationCfgs(Parcel* cfgs) override;
    int setProjectIdReplaceState(int state) override;
    int getProjectIdReplaceState() override;
    int CopyPidfileToBootvideo() override;
    String16 findUdiskLogoPath() override;
    String16 findUdiskAnimationPath() override;
    String16 findUdiskBootVideoPath() override;
    int presetApkBlackList() override;
    int presetEdidFile() override;
    bool getEyePqFixedEnable() override;
    String16 getEyePqFixedValue() override;
    String16 getWifiCountryCode() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
