#pragma once

#include <tarn/IKeyboardCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class KeyboardCtrl : public virtual IKeyboardCtrl {
  public:
    explicit KeyboardCtrl(const sp<TarnManager>& manager);

    bool getKeyboardByName(String16 name) override;
    bool getKeyboardByID(int id0, int id1) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
