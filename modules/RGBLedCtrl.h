#pragma once

#include <tarn/IRGBLedCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class RGBLedCtrl : public IRGBLedCtrl {
  public:
    explicit RGBLedCtrl(const sp<TarnManager>& manager);

    int setPowerState(int state) override;
    int setIRInputState() override;
    int setBluetoothState(int state) override;
    int setMicrophoneState(int state) override;
    int setPowerLedEnableState(int state) override;
    int setLedOtaState(int state) override;
    int setDiagnosisState(int state) override;
    int setPowerStandbyState(int state) override;
    bool setLedOn(int led) override;
    bool setLedOff(int led) override;
    bool setVaLedState(_EnumVaLedState_ state) override;
    int getVaLedState() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
