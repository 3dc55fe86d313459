#include <tarn/ITeaDspCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerTeaDspCtrl(std::vector<Controller>* registry) {
    Builder<ITeaDspCtrl> builder(registry, "teaDsp", "TeaDspCtrl", &ITarnManager::getTeaDspCtrl);
    METHOD(setTeaMicAlgorithm, CMD_TEADSP_SET_MIC_ALGORITHM);
    METHOD(getTeaMicAlgorithm, CMD_TEADSP_GET_MIC_ALGORITHM);
    METHOD(getDeviceStatus, CMD_TEADSP_GET_DEVICE_STATUS);
    METHOD(GetDeviceInformation, CMD_TEADSP_GET_DEVICE_INFORMATION);
    METHOD(GetDeviceMute, CMD_TEADSP_GET_DEVICE_MUTE);
    METHOD(SetDevicePoeSinkRouteMode, CMD_TEADSP_SET_POE_SINK_ROUTE_MODE);
    METHOD(GetDevicePoeSinkRouteMode, CMD_TEADSP_GET_POE_SINK_ROUTE_MODE);
    METHOD(DevicePortAttachStateUpdate, CMD_TEADSP_PORT_ATTACH_STATE_UPDATE);
    METHOD(GetAllDeviceInformation, CMD_TEADSP_GET_ALL_DEVICE_INFORMATION);
    METHOD(SetDeviceLineoutSinkRouteMode, CMD_TEADSP_SET_LINEOUT_SINK_ROUTE_MODE);
    METHOD(GetDeviceLineoutSinkRouteMode, CMD_TEADSP_GET_LINEOUT_SINK_ROUTE_MODE);
    METHOD(GetDevicePortAttachInformation, CMD_TEADSP_GET_PORT_ATTACH_INFORMATION);
    METHOD(SetDeviceOffHook, CMD_TEADSP_SET_OFF_HOOK);
    METHOD(SetDeviceMicrophoneOverallMute, CMD_TEADSP_SET_MICROPHONE_OVERALL_MUTE);
    METHOD(GetDeviceMicrophoneOverallMute, CMD_TEADSP_GET_MICROPHONE_OVERALL_MUTE);
    METHOD(SetDeviceRingCall, CMD_TEADSP_SET_RING_CALL);
}

}  // namespace tarn::registry
