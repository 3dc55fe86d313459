#include "modules/CameraCtrl.h"

#include "modules/FirmwareRecords.h"
#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@CameraCtrl"
#define TARN_LOG_PINNED
#include "log/Log.h"

namespace android {

CameraCtrl::CameraCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

bool CameraCtrl::getCameraEnable() {
    return mTarnMgr->exeCmdSet_Bool(CMD_CAMERA_GET_ENABLE);
}

bool CameraCtrl::setCameraEnable(bool enabled) {
    return mTarnMgr->exeCmdSet_Bool(CMD_CAMERA_SET_ENABLE, enabled);
}

String16 CameraCtrl::getCameraDeviceName(int camera) {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_CAMERA_GET_DEVICENAME, camera, &reply) != 0) {
        TLOGE_AT(40, "exeCmdSet_Parcel:CMD_CAMERA_GET_DEVICENAME error!\n");
        return String16();
    }
    return reply.readString16();
}

bool CameraCtrl::getCameraDeviceInfo(int camera, TarnCameraInfo& info) {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_CAMERA_GET_DEVICE_INFO, camera, &reply) != 0) {
        TLOGE_AT(54, "exeCmdSet_Parcel:CMD_CAMERA_GET_DEVICE_INFO error!\n");
        return false;
    }
    // The service sends one more word in front.
    reply.readInt32();
    info.text0 = readUtf8(reply);
    info.value0 = reply.readInt32();
    info.value1 = reply.readInt32();
    return true;
}

bool CameraCtrl::isCameraEnabled(int fwCameraType) {
    TLOGD_AT(66, "[%s] fwCameraType=%d \n", __func__, fwCameraType);
    return mTarnMgr->exeCmdSet_Bool(CMD_CAMERA_IS_ENABLED, fwCameraType);
}

bool CameraCtrl::setCameraEnabled(int fwCameraType, bool enabled) {
    TLOGD_AT(72, "[%s] fwCameraType=%d; enabled=%d \n", __func__, fwCameraType, enabled);
    return mTarnMgr->exeCmdSet_Bool(CMD_CAMERA_SET_ENABLED, fwCameraType, enabled);
}

bool CameraCtrl::getFwCameraList(std::vector<EntityFwCamera>* out) {
    TLOGD_AT(78, "[%s] ++ \n", __func__);
    out->clear();
    const bool ok = mTarnMgr->exeCmdSet_Bool(CMD_CAMERA_GET_FW_LIST);
    if (ok) {
        // The exchange hands over no reply, so the list stays empty and gives callers no data.
        const Parcel reply;
        readList(reply, kFirmwareFields, readFirmware<EntityFwCamera>, out);
    } else {
        TLOGE_AT(106, "[%s]  fail, ret = %d \n", __func__, ok);
    }
    return true;
}

bool CameraCtrl::setCameraIdDeviceMap(const char* id, const char* device) {
    Parcel request;
    request.writeString16(String16(id));
    request.writeString16(String16(device));
    Parcel reply;
    const int status = mTarnMgr->exeCmdSet_Parcel(CMD_CAMERA_SET_ID_DEVICE_MAP, request, &reply);
    // The result is the service's answer inverted.
    return status != -1 && !reply.readBool();
}

String16 CameraCtrl::getCameraDeviceSn(int camera) {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_CAMERA_GET_DEVICESN, camera, &reply) != 0) {
        TLOGE_AT(133, "exeCmdSet_Parcel:CMD_CAMERA_GET_DEVICESN error!\n");
        return String16();
    }
    return reply.readString16();
}

}  // namespace android
