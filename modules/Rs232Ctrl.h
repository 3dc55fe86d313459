#pragma once

#include <tarn/IRs232Ctrl.h>
#include <tarn/TarnManager.h>

namespace android {

class Rs232Ctrl : public virtual IRs232Ctrl {
  public:
    explicit Rs232Ctrl(const sp<TarnManager>& manager);

    String16 getSmartRs232FrontUsb(int port) override;
    String16 getSmartRs232SideUsb(int port) override;
    String16 getSmartRs232EthMac(int port) override;
    bool getATRs232TestResult() override;
    String16 getEmmcSize() override;
    String16 getRamSize() override;
    String16 getSmartRs232Sdcard() override;
    bool getSmartRs232PcDet() override;
    bool getSmartRs232PcStatus() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
