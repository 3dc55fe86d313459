#pragma once

#include <tarn/IPropertiesCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class PropertiesCtrl : public IPropertiesCtrl {
  public:
    explicit PropertiesCtrl(const sp<TarnManager>& manager);

    int property_get(const char* key, char* value, const char* default_value) override;
    int property_set(const char* key, const char* value) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
