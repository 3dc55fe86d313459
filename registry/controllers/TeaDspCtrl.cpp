#include <tarn/ITeaDspCtrl.h>

#include "protocol/Commands.h"
#include "registry/Builder.h"

using namespace android;

namespace tarnctl {

void registerTeaDspCtrl(std::vector<Controller>* registry) {
    Builder<ITeaDspCtrl>(registry, "teaDsp", "TeaDspCtrl", &ITarnManager::getTeaDspCtrl)
            .method("setTeaMicAlgorithm", CMD_TEADSP_SET_MIC_ALGORITHM,
                    &ITeaDspCtrl::setTeaMicAlgorithm, "on")
            .method("getTeaMicAlgorithm", CMD_TEADSP_GET_MIC_ALGORITHM,
                    &ITeaDspCtrl::getTeaMicAlgorithm)
            .method("getDeviceStatus", CMD_TEADSP_GET_DEVICE_STATUS, &ITeaDspCtrl::getDeviceStatus)
            .method("GetDeviceInformation", CMD_TEADSP_GET_DEVICE_INFORMATION,
                    &ITeaDspCtrl::GetDeviceInformation)
            .method("GetDeviceMute", CMD_TEADSP_GET_DEVICE_MUTE, &ITeaDspCtrl::GetDeviceMute,
                    "device")
            .method("SetDevicePoeSinkRouteMode", CMD_TEADSP_SET_POE_SINK_ROUTE_MODE,
                    &ITeaDspCtrl::SetDevicePoeSinkRouteMode, "mode")
            .method("GetDevicePoeSinkRouteMode", CMD_TEADSP_GET_POE_SINK_ROUTE_MODE,
                    &ITeaDspCtrl::GetDevicePoeSinkRouteMode)
            .method("DevicePortAttachStateUpdate", CMD_TEADSP_PORT_ATTACH_STATE_UPDATE,
                    &ITeaDspCtrl::DevicePortAttachStateUpdate,
                    "port, type, device, attached, extra")
            .method("GetAllDeviceInformation", CMD_TEADSP_GET_ALL_DEVICE_INFORMATION,
                    &ITeaDspCtrl::GetAllDeviceInformation)
            .method("SetDeviceLineoutSinkRouteMode", CMD_TEADSP_SET_LINEOUT_SINK_ROUTE_MODE,
                    &ITeaDspCtrl::SetDeviceLineoutSinkRouteMode, "mode")
            .method("GetDeviceLineoutSinkRouteMode", CMD_TEADSP_GET_LINEOUT_SINK_ROUTE_MODE,
                    &ITeaDspCtrl::GetDeviceLineoutSinkRouteMode)
            .method("GetDevicePortAttachInformation", CMD_TEADSP_GET_PORT_ATTACH_INFORMATION,
                    &ITeaDspCtrl::GetDevicePortAttachInformation)
            .method("SetDeviceOffHook", CMD_TEADSP_SET_OFF_HOOK, &ITeaDspCtrl::SetDeviceOffHook,
                    "state")
            .method("SetDeviceMicrophoneOverallMute", CMD_TEADSP_SET_MICROPHONE_OVERALL_MUTE,
                    &ITeaDspCtrl::SetDeviceMicrophoneOverallMute, "mute")
            .method("GetDeviceMicrophoneOverallMute", CMD_TEADSP_GET_MICROPHONE_OVERALL_MUTE,
                    &ITeaDspCtrl::GetDeviceMicrophoneOverallMute)
            .method("SetDeviceRingCall", CMD_TEADSP_SET_RING_CALL, &ITeaDspCtrl::SetDeviceRingCall,
                    "state");
}

}  // namespace tarnctl
