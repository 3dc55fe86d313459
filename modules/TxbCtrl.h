#pragma once

#include <tarn/ITxbCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class TxbCtrl : public virtual ITxbCtrl {
  public:
    explicit TxbCtrl(const sp<TarnManager>& manager);

    bool sendTxbKeycode(_EnumTxbKeyType_ key) override;
    bool sendTxbMaterial(_EnumTxbMaterialType_ material) override;
    bool sendTxbSignalAmplitude(int* values, int count) override;
    int getTxbSensorMuteState() override;
    bool setTxbSensorMuteState(int sensor, bool mute) override;
    bool sendTxbPenCoord(int x, int y) override;
    int getTxbSensorSelfTestState(int* out) override;
    bool setTxbSensorSelfTestState(int* values, int count) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
