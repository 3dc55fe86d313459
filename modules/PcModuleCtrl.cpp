#include "modules/PcModuleCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@PcModuleCtrl"
#define TARN_LOG_PINNED
#include "log/Log.h"

namespace android {

PcModuleCtrl::PcModuleCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {
    TLOGD_AT(27, "PcModuleCtrl::PcModuleCtrl");
}

int PcModuleCtrl::getPcState() {
    Parcel reply;
    TLOGD_AT(34, "PcModuleCtrl::getPcState");
    mTarnMgr->exeCmdSet_Parcel(CMD_PC_MODULE_GET_STATE, &reply);
    // A failure shows in the reply's size, never in the status.
    if (reply.dataSize() == 0) {
        TLOGE_AT(39, "PcModuleCtrl::getPcState failed");
        return 0;
    }
    return reply.readInt32();
}

int PcModuleCtrl::setPcSwitchOn() {
    TLOGD_AT(55, "PcModuleCtrl::setPcSwitchOn");
    const int result = mTarnMgr->exeCmdSet_Int(CMD_PC_MODULE_SET_SWITCH_ON);
    if (result < 0) TLOGE_AT(58, "PcModuleCtrl::setPcSwitchOn failed");
    return result;
}

int PcModuleCtrl::setPcSwitchOff() {
    TLOGD_AT(66, "PcModuleCtrl::setPcSwitchOff");
    const int result = mTarnMgr->exeCmdSet_Int(CMD_PC_MODULE_SET_SWITCH_OFF);
    if (result < 0) TLOGE_AT(69, "PcModuleCtrl::setPcSwitchOff failed");
    return result;
}

int PcModuleCtrl::setPcRecovery() {
    TLOGD_AT(77, "PcModuleCtrl::setPcRecovery");
    const int result = mTarnMgr->exeCmdSet_Int(CMD_PC_MODULE_SET_RECOVERY);
    if (result < 0) TLOGE_AT(80, "PcModuleCtrl::setPcRecovery failed");
    return result;
}

int PcModuleCtrl::sendSerialData(unsigned char*, int) {
    TLOGD_AT(89, "PcModuleCtrl::sendSerialData");
    return 0;
}

std::vector<_EnumPcBootMode> PcModuleCtrl::getSupportPcBootModeList() {
    std::vector<_EnumPcBootMode> modes;
    Parcel reply;
    mTarnMgr->exeCmdSet_Parcel(CMD_PC_MODULE_GET_SUPPORTED_BOOT_MODES, &reply);
    const int32_t count = reply.readInt32();
    const int32_t most = recordsToRead(count, 1);
    for (int32_t i = 0; i < most; i++) {
        const int32_t mode = reply.readInt32();
        TLOGD_AT(104, "PcModuleCtrl::getSupportPcBootModeList list_cnt:%d, val:%d", count, mode);
        modes.push_back(static_cast<_EnumPcBootMode>(mode));
    }
    return modes;
}

bool PcModuleCtrl::setPcBootMode(_EnumPcBootMode mode) {
    TLOGD_AT(113, "PcModuleCtrl::setPcBootMode");
    return mTarnMgr->exeCmdSet_Bool(CMD_PC_MODULE_SET_BOOT_MODE, mode);
}

// The setter's name and, for the failure, the debug level: the lines are fixed.
_EnumPcBootMode PcModuleCtrl::getPcBootMode() {
    Parcel reply;
    TLOGD_AT(122, "PcModuleCtrl::setPcBootMode");
    mTarnMgr->exeCmdSet_Parcel(CMD_PC_MODULE_GET_BOOT_MODE, &reply);
    if (reply.dataSize() == 0) {
        TLOGD_AT(127, "PcModuleCtrl::setPcBootMode failed");
        return PC_BOOT_MODE_FALLBACK;
    }
    return static_cast<_EnumPcBootMode>(reply.readInt32());
}

}  // namespace android
