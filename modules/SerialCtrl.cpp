#include "modules/SerialCtrl.h"

#include <binder/Parcel.h>

#include "protocol/Commands.h"

namespace android {

SerialCtrl::SerialCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

bool SerialCtrl::SetSerialSwitch(_EnumSerialDevice_ device, bool on, int param) {
    Parcel request;
    request.writeInt32(device);
    request.writeBool(on);
    request.writeInt32(param);
    Parcel reply;
    return mTarnMgr->exeCmdSet_Parcel(CMD_SERIAL_SET_SWITCH, request, &reply) == 0;
}

bool SerialCtrl::SendSerialData(_EnumSerialDevice_ device, std::vector<int>& data) {
    Parcel request;
    request.writeInt32(device);
    request.writeInt32(static_cast<int32_t>(data.size()));
    for (const int value : data) request.writeInt32(value);
    Parcel reply;
    return mTarnMgr->exeCmdSet_Parcel(CMD_SERIAL_SEND_DATA, request, &reply) == 0;
}

// This setter and setSerialDeviceId() are true when the command failed; callers rely on that.
bool SerialCtrl::SetSerialParamToAutoTest(_EnumSerialDevice_ device) {
    Parcel request;
    request.writeInt32(device);
    Parcel reply;
    return mTarnMgr->exeCmdSet_Parcel(CMD_SERIAL_SET_PARAM_TO_AUTO_TEST, request, &reply) != 0;
}

int SerialCtrl::getRS232Baudrate() {
    return mTarnMgr->exeCmdSet_Int(CMD_SERIAL_GET_RS232_BAUDRATE);
}

int SerialCtrl::getRS232Port() {
    return mTarnMgr->exeCmdSet_Int(CMD_SERIAL_GET_RS232_PORT);
}

bool SerialCtrl::setSerialDeviceId(_EnumSerialDevice_ device, int id) {
    Parcel request;
    request.writeInt32(device);
    request.writeInt32(id);
    Parcel reply;
    return mTarnMgr->exeCmdSet_Parcel(CMD_SERIAL_SET_DEVICE_ID, request, &reply) != 0;
}

int SerialCtrl::getSerialDeviceId(_EnumSerialDevice_ device) {
    Parcel request;
    request.writeInt32(device);
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_SERIAL_GET_DEVICE_ID, request, &reply) != 0) return -1;
    return reply.readInt32();
}

}  // namespace android
