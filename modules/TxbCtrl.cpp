#include "modules/TxbCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

namespace android {

TxbCtrl::TxbCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

bool TxbCtrl::sendTxbKeycode(_EnumTxbKeyType_ key) {
    return mTarnMgr->exeCmdSet_Int(CMD_TXB_SEND_KEYCODE, key) != 0;
}

bool TxbCtrl::sendTxbMaterial(_EnumTxbMaterialType_ material) {
    return mTarnMgr->exeCmdSet_Int(CMD_TXB_SEND_MATERIAL, material) != 0;
}

bool TxbCtrl::sendTxbSignalAmplitude(int* values, int count) {
    return mTarnMgr->exeCmdSet_Array(CMD_TXB_SEND_SIGNAL_AMPLITUDE, values, count) != 0;
}

int TxbCtrl::getTxbSensorMuteState() {
    return askForIntUnlessFailed(mTarnMgr, CMD_TXB_GET_SENSOR_MUTE_STATE);
}

bool TxbCtrl::setTxbSensorMuteState(int sensor, bool mute) {
    return mTarnMgr->exeCmdSet_Bool(CMD_TXB_SET_SENSOR_MUTE_STATE, sensor, mute);
}

bool TxbCtrl::sendTxbPenCoord(int x, int y) {
    int coordinates[] = {x, y};
    return mTarnMgr->exeCmdSet_Array(CMD_TXB_SEND_PEN_COORD, coordinates, 2) != 0;
}

int TxbCtrl::getTxbSensorSelfTestState(int* out) {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_TXB_GET_SENSOR_SELF_TEST_STATE, &reply) == -1) return -1;
    // The count is the service's and is trusted, also past the end of a short reply: the caller
    // knows how many sensors the board has.
    const int32_t count = reply.readInt32();
    for (int32_t i = 0; i < count; i++) out[i] = reply.readInt32();
    return count;
}

bool TxbCtrl::setTxbSensorSelfTestState(int* values, int count) {
    // Unlike the send methods, 0 is success here.
    return mTarnMgr->exeCmdSet_Array(CMD_TXB_SET_SENSOR_SELF_TEST_STATE, values, count) == 0;
}

}  // namespace android
