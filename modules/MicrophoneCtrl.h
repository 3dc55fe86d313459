#pragma once

#include <tarn/IMicrophoneCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class MicrophoneCtrl : public IMicrophoneCtrl {
  public:
    explicit MicrophoneCtrl(const sp<TarnManager>& manager);

    int getFwMicrophoneList(std::vector<EntityMicrophone>* list) override;
    bool isBuildInMicEnabled(int microphone) override;
    bool setBuildInMicEnabled(int microphone, bool enabled) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
