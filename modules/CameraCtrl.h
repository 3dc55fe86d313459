#pragma once

#include <tarn/ICameraCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class CameraCtrl : public virtual ICameraCtrl {
  public:
    explicit CameraCtrl(const sp<TarnManager>& manager);

    bool getCameraEnable() override;
    bool setCameraEnable(bool enabled) override;
    String16 getCameraDeviceName(int camera) override;
    bool getCameraDeviceInfo(int camera, TarnCameraInfo& info) override;
    bool isCameraEnabled(int fwCameraType) override;
    bool setCameraEnabled(int fwCameraType, bool enabled) override;
    bool getFwCameraList(std::vector<EntityFwCamera>* out) override;
    bool setCameraIdDeviceMap(const char* id, const char* device) override;
    String16 getCameraDeviceSn(int camera) override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
