#pragma once

#include <tarn/IXbugCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class XbugCtrl : public IXbugCtrl {
  public:
    explicit XbugCtrl(const sp<TarnManager>& manager);

    int setTarnServiceLogLevel(_TARN_LOG_PRIO_E_ level) override;
    int getTarnServiceLogLevel(int which) override;
    bool sendMcuCmdDumpZUNTLog() override;
    int setTarnFuntionChkBaseTime(int baseTime) override;
    int getTarnFuntionChkBaseTime() override;
    int getTarnFuntionTimeOutList() override;
    std::string getNodeInfo(std::string node) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
