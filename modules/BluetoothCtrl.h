#pragma once

#include <tarn/IBluetoothCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class BluetoothCtrl : public IBluetoothCtrl {
  public:
    explicit BluetoothCtrl(const sp<TarnManager>& manager);

    bool isBleWakeup() override;
    bool setBleWakeup(bool on) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
