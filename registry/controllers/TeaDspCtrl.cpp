#include <tarn/ITeaDspCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerTeaDspCtrl(std::vector<Controller>* registry) {
    Builder<ITeaDspCtrl>(registry, "teaDsp", "TeaDspCtrl", &ITarnManager::getTeaDspCtrl)
            .method("setTeaMicAlgorithm", Row::CMD_TEADSP_SET_MIC_ALGORITHM,
                    &ITeaDspCtrl::setTeaMicAlgorithm, "on")
            .method("getTeaMicAlgorithm", Row::CMD_TEADSP_GET_MIC_ALGORITHM,
                    &ITeaDspCtrl::getTeaMicAlgorithm)
            .method("getDeviceStatus", Row::CMD_TEADSP_GET_DEVICE_STATUS,
                    &ITeaDspCtrl::getDeviceStatus)
            .method("GetDeviceInformation", Row::CMD_TEADSP_GET_DEVICE_INFORMATION,
                    &ITeaDspCtrl::GetDeviceInformation)
            .method("GetDeviceMute", Row::CMD_TEADSP_GET_DEVICE_MUTE, &ITeaDspCtrl::GetDeviceMute,
                    "device")
            .method("SetDevicePoeSinkRouteMode", Row::CMD_TEADSP_SET_POE_SINK_ROUTE_MODE,
                    &ITeaDspCtrl::SetDevicePoeSinkRouteMode, "mode")
            .method("GetDevicePoeSinkRouteMode", Row::CMD_TEADSP_GET_POE_SINK_ROUTE_MODE,
                    &ITeaDspCtrl::GetDevicePoeSinkRouteMode)
            .method("DevicePortAttachStateUpdate", Row::CMD_TEADSP_PORT_ATTACH_STATE_UPDATE,
                    &ITeaDspCtrl::DevicePortAttachStateUpdate,
                    "port, type, device, attached, extra")
            .method("GetAllDeviceInformation", Row::CMD_TEADSP_GET_ALL_DEVICE_INFORMATION,
                    &ITeaDspCtrl::GetAllDeviceInformation)
            .method("SetDeviceLineoutSinkRouteMode", Row::CMD_TEADSP_SET_LINEOUT_SINK_ROUTE_MODE,
                    &ITeaDspCtrl::SetDeviceLineoutSinkRouteMode, "mode")
            .method("GetDeviceLineoutSinkRouteMode", Row::CMD_TEADSP_GET_LINEOUT_SINK_ROUTE_MODE,
                    &ITeaDspCtrl::GetDeviceLineoutSinkRouteMode)
            .method("GetDevicePortAttachInformation", Row::CMD_TEADSP_GET_PORT_ATTACH_INFORMATION,
                    &ITeaDspCtrl::GetDevicePortAttachInformation)
            .method("SetDeviceOffHook", Row::CMD_TEADSP_SET_OFF_HOOK,
                    &ITeaDspCtrl::SetDeviceOffHook, "state")
            .method("SetDeviceMicrophoneOverallMute", Row::CMD_TEADSP_SET_MICROPHONE_OVERALL_MUTE,
                    &ITeaDspCtrl::SetDeviceMicrophoneOverallMute, "mute")
            .method("GetDeviceMicrophoneOverallMute", Row::CMD_TEADSP_GET_MICROPHONE_OVERALL_MUTE,
                    &ITeaDspCtrl::GetDeviceMicrophoneOverallMute)
            .method("SetDeviceRingCall", Row::CMD_TEADSP_SET_RING_CALL,
                    &ITeaDspCtrl::SetDeviceRingCall, "state");
}

}  // namespace tarn::registry
