#include <tarn/ICameraCtrl.h>

#include "registry/Builder.h"
#include "registry/Results.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<TarnCameraInfo> : RecordResult<TarnCameraInfo> {
    static constexpr const char* kWords = "camera information";
    static Json::Value toJson(const TarnCameraInfo& info) {
        return fields({{"text0", info.text0}, {"value0", info.value0}, {"value1", info.value1}});
    }
};

template <>
struct ResultType<EntityFwCamera> : RecordResult<EntityFwCamera> {
    static constexpr const char* kWords = "camera firmware";
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
                return fields({{"result", ok}, {"info", toJson(info)}});
            },
            "camera");
    METHOD(isCameraEnabled, CMD_CAMERA_IS_ENABLED);
    METHOD(setCameraEnabled, CMD_CAMERA_SET_ENABLED);
    builder.adapted(
            "getFwCameraList", Row::CMD_CAMERA_GET_FW_LIST, &ICameraCtrl::getFwCameraList,
            +[](ICameraCtrl& cameras) {
                std::vector<EntityFwCamera> list;
                const bool ok = cameras.getFwCameraList(&list);
                return fields({{"result", ok}, {"list", toJson(list)}});
            });
    METHOD(setCameraIdDeviceMap, CMD_CAMERA_SET_ID_DEVICE_MAP);
    METHOD(getCameraDeviceSn, CMD_CAMERA_GET_DEVICESN);
}

}  // namespace tarn::registry
