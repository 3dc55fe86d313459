#pragma once

#include <tarn/IGpioCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class GpioCtrl : public IGpioCtrl {
  public:
    explicit GpioCtrl(const sp<TarnManager>& manager);

    int setGpioDirInput(unsigned int gpio) override;
    int setGpioDirOutput(unsigned int gpio) override;
    int getGpioDirBit(unsigned int gpio, TARN_BOOL* dir) override;
    int writeGpioBit(unsigned int gpio, TARN_BOOL value) override;
    int readGpioBit(unsigned int gpio, TARN_BOOL* value) override;
    int readGpioOutBit(unsigned int gpio, TARN_BOOL* value) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
