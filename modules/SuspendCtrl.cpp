#include "modules/SuspendCtrl.h"

#include "protocol/Commands.h"

namespace android {

namespace {

int sendSwitch(const sp<TarnManager>& manager, int cmd, bool on) {
    Parcel request;
    request.writeInt32(static_cast<int>(on));
    Parcel reply;
    return manager->exeCmdSet_Parcel(cmd, request, &reply) == 0 ? 0 : -1;
}

}  // namespace

SuspendCtrl::SuspendCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

bool SuspendCtrl::getSuspendStatus() {
    return mTarnMgr->exeCmdSet_Bool(CMD_SUSPEND_GET_STATUS);
}

int SuspendCtrl::setSuspendStatus(bool on) {
    return sendSwitch(mTarnMgr, CMD_SUSPEND_SET_STATUS, on);
}

bool SuspendCtrl::getFakeStandyStatus() {
    return mTarnMgr->exeCmdSet_Bool(CMD_SUSPEND_GET_FAKE_STANDBY_STATUS);
}

int SuspendCtrl::setFakeStandyStatus(bool on) {
    return sendSwitch(mTarnMgr, CMD_SUSPEND_SET_FAKE_STANDBY_STATUS, on);
}

}  // namespace android
