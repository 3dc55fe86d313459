#pragma once

#include <tarn/ISerialCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class SerialCtrl : public virtual ISerialCtrl {
  public:
    explicit SerialCtrl(const sp<TarnManager>& manager);

    bool SetSerialSwitch(_EnumSerialDevice_ device, bool on, int param) override;
    bool SendSerialData(_EnumSerialDevice_ device, std::vector<int>& data) override;
    bool SetSerialParamToAutoTest(_EnumSerialDevice_ device) override;
    int getRS232Baudrate() override;
    int getRS232Port() override;
    bool setSerialDeviceId(_EnumSerialDevice_ device, int id) override;
    int getSerialDeviceId(_EnumSerialDevice_ device) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
