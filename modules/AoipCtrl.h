#pragma once

#include <tarn/IAoipCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class AoipCtrl : public IAoipCtrl {
  public:
    explicit AoipCtrl(const sp<TarnManager>& manager);

    int setCallStatus(int status) override;
    int setVolume(int volume) override;
    int volumeUp() override;
    int volumeDown() override;
    int mute() override;
    int unmute() override;
    String16 listDevices() override;
    int upgradeFirmware(const String16& first, const String16& second) override;
    int getLocalStatus() override;
    int testAT() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
