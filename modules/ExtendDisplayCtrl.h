#pragma once

#include <tarn/IExtendDisplayCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class ExtendDisplayCtrl : public IExtendDisplayCtrl {
  public:
    explicit ExtendDisplayCtrl(const sp<TarnManager>& manager);

    int getTypecOutHDCPStatus() override;
    int setTypecOutHDCPStatus(int status) override;
    int getExtendDisplayHDCPStatus() override;
    int setExtendDisplayHDCPStatus(int status) override;
    int setExtendDisplayEnabled(int enabled) override;
    int setExtendDisplayEnabled_p2(int selector, int enabled) override;
    int getExtendDisplayEnabled() override;
    int setHdmiInOutEnabled(bool on) override;
    int getHdmiInOutEnabled() override;
    std::vector<std::string> getExtendDisplayUserResolutionList() override;
    int setExtendDisplayResolution(const String16& resolution) override;
    String16 getExtendDisplayResolution() override;
    String16 getExtendDisplayColorFormat() override;
    int setExtendDisplayColorFormat(const String16& format) override;
    std::vector<std::string> getExtendDisplaySuportColorFormatList() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
