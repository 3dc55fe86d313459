#pragma once

#include <tarn/ISourceCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class SourceCtrl : public ISourceCtrl {
  public:
    explicit SourceCtrl(const sp<TarnManager>& manager);

    int getChannelList() override;
    int getCurInputSource() override;
    int getInputSourcePlugStatus(int source) override;
    int getSignalStatusBySource(int source) override;
    int setCurInputSource(int source) override;
    int setHdmiRxEdidVersion(int port, int version) override;
    int getHdmiRxEdidVersion(int port) override;
    int setHdmiStandbyEn(bool on) override;
    int getHdmiStandbyEn() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
