#include "modules/TeaDspCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

// The log drops these lines.
#define TARN_LOG_TAG nullptr
#include "log/Log.h"

namespace android {

namespace {

/** Logs a method's outcome under the method's name and hands the result back. */
int logOutcome(const char* method, int result) {
    if (result != 0) {
        TarnLog(TARN_LOG_ERROR, TARN_LOG_TAG, method, __LINE__, "[%s]  tarn_error, ret = %d\n",
                method, result);
    } else {
        TarnLog(TARN_LOG_DEBUG, TARN_LOG_TAG, method, __LINE__, "[%s]  tarn_ok, ret = %d\n", method,
                result);
    }
    return result;
}

}  // namespace

TeaDspCtrl::TeaDspCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

bool TeaDspCtrl::setTeaMicAlgorithm(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_TEADSP_SET_MIC_ALGORITHM, on);
}

bool TeaDspCtrl::getTeaMicAlgorithm() {
    return mTarnMgr->exeCmdSet_Bool(CMD_TEADSP_GET_MIC_ALGORITHM);
}

bool TeaDspCtrl::getDeviceStatus() {
    return mTarnMgr->exeCmdSet_Bool(CMD_TEADSP_GET_DEVICE_STATUS);
}

std::string TeaDspCtrl::GetDeviceInformation() {
    TLOGD("[%s] ++ \n", __func__);
    Parcel reply;
    const int result = mTarnMgr->exeCmdSet_Parcel(CMD_TEADSP_GET_DEVICE_INFORMATION, &reply);
    if (result != 0) {
        logOutcome(__func__, result);
        return std::string();
    }
    return readUtf8(reply);
}

int TeaDspCtrl::GetDeviceMute(int device) {
    TLOGD("[%s] ++ \n", __func__);
    return logOutcome(__func__, mTarnMgr->exeCmdSet_Int(CMD_TEADSP_GET_DEVICE_MUTE, device));
}

int TeaDspCtrl::SetDevicePoeSinkRouteMode(int mode) {
    TLOGD("[%s] ++ \n", __func__);
    return logOutcome(__func__, mTarnMgr->exeCmdSet_Int(CMD_TEADSP_SET_POE_SINK_ROUTE_MODE, mode));
}

int TeaDspCtrl::GetDevicePoeSinkRouteMode() {
    TLOGD("[%s] ++ \n", __func__);
    Parcel reply;
    const int result = mTarnMgr->exeCmdSet_Parcel(CMD_TEADSP_GET_POE_SINK_ROUTE_MODE, &reply);
    logOutcome(__func__, result);
    return result == 0 ? reply.readInt32() : -1;
}

int TeaDspCtrl::DevicePortAttachStateUpdate(const char* port, int type, const char* device,
                                            bool attached, const char* extra) {
    TLOGD("[%s] ++ \n", __func__);
    Parcel request;
    request.writeString16(String16(port));
    request.writeInt32(type);
    request.writeString16(String16(device));
    request.writeBool(attached);
    request.writeString16(String16(extra));
    Parcel reply;
    return logOutcome(__func__, mTarnMgr->exeCmdSet_Parcel(CMD_TEADSP_PORT_ATTACH_STATE_UPDATE,
                                                           request, &reply));
}

std::string TeaDspCtrl::GetAllDeviceInformation() {
    return mTarnMgr->exeCmdSet_Str(CMD_TEADSP_GET_ALL_DEVICE_INFORMATION);
}

int TeaDspCtrl::SetDeviceLineoutSinkRouteMode(int mode) {
    return mTarnMgr->exeCmdSet_Int(CMD_TEADSP_SET_LINEOUT_SINK_ROUTE_MODE, mode);
}

int TeaDspCtrl::GetDeviceLineoutSinkRouteMode() {
    return mTarnMgr->exeCmdSet_Int(CMD_TEADSP_GET_LINEOUT_SINK_ROUTE_MODE);
}

std::string TeaDspCtrl::GetDevicePortAttachInformation() {
    return mTarnMgr->exeCmdSet_Str(CMD_TEADSP_GET_PORT_ATTACH_INFORMATION);
}

int TeaDspCtrl::SetDeviceOffHook(int state) {
    return mTarnMgr->exeCmdSet_Int(CMD_TEADSP_SET_OFF_HOOK, state);
}

int TeaDspCtrl::SetDeviceMicrophoneOverallMute(int mute) {
    return mTarnMgr->exeCmdSet_Int(CMD_TEADSP_SET_MICROPHONE_OVERALL_MUTE, mute);
}

int TeaDspCtrl::GetDeviceMicrophoneOverallMute() {
    return mTarnMgr->exeCmdSet_Int(CMD_TEADSP_GET_MICROPHONE_OVERALL_MUTE);
}

int TeaDspCtrl::SetDeviceRingCall(int state) {
    return mTarnMgr->exeCmdSet_Int(CMD_TEADSP_SET_RING_CALL, state);
}

}  // namespace android
