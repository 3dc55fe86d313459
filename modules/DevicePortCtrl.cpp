#include "modules/DevicePortCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

namespace android {

namespace {

String16 readName(const Parcel& reply) {
    return reply.readString16();
}

}  // namespace

DevicePortCtrl::DevicePortCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int DevicePortCtrl::setDevicePortEnabled(char* port, bool enabled) {
    Parcel request;
    request.writeString16(String16(port));
    request.writeBool(enabled);
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_DEVICE_PORT_SET_ENABLED, request, &reply) == -1) return -1;
    return static_cast<int>(reply.readBool());
}

bool DevicePortCtrl::getDevicePortEnabled(char* port) {
    Parcel request;
    request.writeString16(String16(port));
    Parcel reply;
    mTarnMgr->exeCmdSet_Parcel(CMD_DEVICE_PORT_GET_ENABLED, request, &reply);
    return reply.readBool();
}

int DevicePortCtrl::getDevicePortList(std::vector<String16>& ports) {
    ports.clear();
    Parcel reply;
    mTarnMgr->exeCmdSet_Parcel(CMD_DEVICE_PORT_GET_LIST, &reply);
    readList(reply, 1, readName, &ports);
    return 0;
}

}  // namespace android
