#include <tarn/ICameraCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<TarnCameraInfo> : RecordResult {
    static constexpr const char* kWords = "camera information";
    static Answer answer(const TarnCameraInfo& info) {
        return record()
                .field("text0", info.text0)
                .field("value0", info.value0)
                .field("value1", info.value1);
    }
};

template <>
struct ResultType<EntityFwCamera> : RecordResult {
    static constexpr const char* kWords = "camera firmware";
    static Answer answer(const EntityFwCamera& camera) {
        return record()
                .field("value0", camera.value0)
                .field("value1", camera.value1)
                .field("value2", camera.value2)
                .field("value3", camera.value3)
                .field("text0", camera.text0)
                .field("flag0", camera.flag0)
                .field("text1", camera.text1)
                .field("flag1", camera.flag1)
                .field("text2", camera.text2)
                .field("text3", camera.text3)
                .field("text4", camera.text4)
                .field("flag2", camera.flag2);
    }
};

void registerCameraCtrl(std::vector<Controller>* registry) {
    Builder<ICameraCtrl> builder(registry, "camera", "CameraCtrl", &ITarnManager::getCameraCtrl);
    METHOD(getCameraEnable, CMD_CAMERA_GET_ENABLE);
    METHOD(setCameraEnable, CMD_CAMERA_SET_ENABLE);
    METHOD(getCameraDeviceName, CMD_CAMERA_GET_DEVICENAME);
    builder.adapted(
            "getCameraDeviceInfo", Row::CMD_CAMERA_GET_DEVICE_INFO,
            &ICameraCtrl::getCameraDeviceInfo,
            +[](ICameraCtrl& cameras, int camera) {
                TarnCameraInfo info;
                const bool ok = cameras.getCameraDeviceInfo(camera, info);
                return record().field("result", ok).field("info", info);
            },
            "camera");
    METHOD(isCameraEnabled, CMD_CAMERA_IS_ENABLED);
    METHOD(setCameraEnabled, CMD_CAMERA_SET_ENABLED);
    builder.adapted(
            "getFwCameraList", Row::CMD_CAMERA_GET_FW_LIST, &ICameraCtrl::getFwCameraList,
            +[](ICameraCtrl& cameras) {
                std::vector<EntityFwCamera> list;
                const bool ok = cameras.getFwCameraList(&list);
                return record().field("result", ok).field("list", list);
            });
    METHOD(setCameraIdDeviceMap, CMD_CAMERA_SET_ID_DEVICE_MAP);
    METHOD(getCameraDeviceSn, CMD_CAMERA_GET_DEVICESN);
}

}  // namespace tarn::registry
