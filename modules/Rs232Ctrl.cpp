#include "modules/Rs232Ctrl.h"

#include <binder/Parcel.h>

#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@Rs232Ctrl"
#define TARN_LOG_PINNED
#include "log/Log.h"

namespace android {

Rs232Ctrl::Rs232Ctrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

String16 Rs232Ctrl::getSmartRs232FrontUsb(int port) {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_RS232_CTRL_GET_FRONT_USB, port, &reply) != 0) {
        TLOGE_AT(30, "exeCmdSet_Parcel:CMD_RS232_CTRL_GET_FRONT_USB error!\n");
        return String16();
    }
    return reply.readString16();
}

String16 Rs232Ctrl::getSmartRs232SideUsb(int port) {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_RS232_CTRL_GET_SIDE_USB, port, &reply) != 0) {
        TLOGE_AT(68, "exeCmdSet_Parcel:CMD_RS232_CTRL_GET_SIDE_USB error!\n");
        return String16();
    }
    return reply.readString16();
}

String16 Rs232Ctrl::getSmartRs232EthMac(int port) {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_RS232_CTRL_GET_ETH_MAC, port, &reply) != 0) {
        TLOGE_AT(82, "exeCmdSet_Parcel:CMD_RS232_CTRL_GET_ETH_MAC error!\n");
        return String16();
    }
    return reply.readString16();
}

bool Rs232Ctrl::getATRs232TestResult() {
    return mTarnMgr->exeCmdSet_Bool(CMD_RS232_CTRL_GET_TEST_RESULT);
}

String16 Rs232Ctrl::getEmmcSize() {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_RS232_CTRL_GET_EMMC_SIZE, &reply) != 0) {
        TLOGE_AT(101, "exeCmdSet_Parcel:CMD_RS232_CTRL_GET_EMMC_SIZE error!\n");
        return String16();
    }
    return reply.readString16();
}

String16 Rs232Ctrl::getRamSize() {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_RS232_CTRL_GET_RAM_SIZE, &reply) != 0) {
        TLOGE_AT(115, "exeCmdSet_Parcel:CMD_RS232_CTRL_GET_RAM_SIZE error!\n");
        return String16();
    }
    return reply.readString16();
}

String16 Rs232Ctrl::getSmartRs232Sdcard() {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_RS232_CTRL_GET_SD_CARD, &reply) != 0) {
        TLOGE_AT(44, "exeCmdSet_Parcel:CMD_RS232_CTRL_GET_SD_CARD error!\n");
        return String16();
    }
    return reply.readString16();
}

bool Rs232Ctrl::getSmartRs232PcDet() {
    return mTarnMgr->exeCmdSet_Bool(CMD_RS232_CTRL_GET_PC_DET);
}

bool Rs232Ctrl::getSmartRs232PcStatus() {
    return mTarnMgr->exeCmdSet_Bool(CMD_RS232_CTRL_GET_PC_STATUS);
}

}  // namespace android
