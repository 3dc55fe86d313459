#include <tarn/ICameraCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultWriter<TarnCameraInfo> {
    static constexpr const char* kType = "camera information";
    static Json::Value toJson(const TarnCameraInfo& info) {
        return fields({{"text0", info.text0}, {"value0", info.value0}, {"value1", info.value1}});
    }
};

template <>
struct ResultWriter<EntityFwCamera> {
    static constexpr const char* kType = "camera firmware";
    static Json::Value toJson(const EntityFwCamera& camera) {
        return fields({{"value0", camera.value0},
                       {"value1", camera.value1},
                       {"value2", camera.value2},
                       {"value3", camera.value3},
                       {"text0", camera.text0},
                       {"flag0", camera.flag0},
                       {"text1", camera.text1},
                       {"flag1", camera.flag1},
                       {"text2", camera.text2},
                       {"text3", camera.text3},
                       {"text4", camera.text4},
                       {"flag2", camera.flag2}});
    }
};

void registerCameraCtrl(std::vector<Controller>* registry) {
    Builder<ICameraCtrl>(registry, "camera", "CameraCtrl", &ITarnManager::getCameraCtrl)
            .method("getCameraEnable", Row::CMD_CAMERA_GET_ENABLE, &ICameraCtrl::getCameraEnable)
            .method("setCameraEnable", Row::CMD_CAMERA_SET_ENABLE, &ICameraCtrl::setCameraEnable,
                    "enabled")
            .method("getCameraDeviceName", Row::CMD_CAMERA_GET_DEVICENAME,
                    &ICameraCtrl::getCameraDeviceName, "camera")
            .adapted(
                    "getCameraDeviceInfo", Row::CMD_CAMERA_GET_DEVICE_INFO,
                    &ICameraCtrl::getCameraDeviceInfo,
                    [](ICameraCtrl& cameras, int camera) {
                        TarnCameraInfo info;
                        const bool ok = cameras.getCameraDeviceInfo(camera, info);
                        return fields({{"result", ok}, {"info", toJson(info)}});
                    },
                    "camera")
            .method("isCameraEnabled", Row::CMD_CAMERA_IS_ENABLED, &ICameraCtrl::isCameraEnabled,
                    "fwCameraType")
            .method("setCameraEnabled", Row::CMD_CAMERA_SET_ENABLED, &ICameraCtrl::setCameraEnabled,
                    "fwCameraType, enabled")
            .adapted("getFwCameraList", Row::CMD_CAMERA_GET_FW_LIST, &ICameraCtrl::getFwCameraList,
                     [](ICameraCtrl& cameras) {
                         std::vector<EntityFwCamera> list;
                         const bool ok = cameras.getFwCameraList(&list);
                         return fields({{"result", ok}, {"list", toJson(list)}});
                     })
            .method("setCameraIdDeviceMap", Row::CMD_CAMERA_SET_ID_DEVICE_MAP,
                    &ICameraCtrl::setCameraIdDeviceMap, "id, device")
            .method("getCameraDeviceSn", Row::CMD_CAMERA_GET_DEVICESN,
                    &ICameraCtrl::getCameraDeviceSn, "camera");
}

}  // namespace tarn::registry
