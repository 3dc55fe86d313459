#include "modules/FwUpgrade.h"

#include <stdlib.h>
#include <string.h>

#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@FwUpgrade"
#include "log/Log.h"

namespace android {

namespace {

constexpr int kMcuFields = 10;

/** A text that does not fit with its NUL ends the process; it is never cut. */
template <size_t Size>
void readText(const Parcel& reply, char (&field)[Size]) {
    const String8 text(reply.readString16());
    const size_t length = strlen(text.c_str());
    if (length >= Size) abort();
    memcpy(field, text.c_str(), length + 1);
}

EntityFwInfoMcu readMcu(const Parcel& reply) {
    EntityFwInfoMcu mcu;
    mcu.intField1 = reply.readInt32();
    mcu.intField2 = reply.readInt32();
    readText(reply, mcu.strField1);
    mcu.intField3 = reply.readInt32();
    readText(reply, mcu.strField2);
    mcu.intField4 = reply.readInt32();
    readText(reply, mcu.strField3);
    readText(reply, mcu.strField4);
    readText(reply, mcu.shortStrField);
    mcu.intField5 = reply.readInt32();
    return mcu;
}

}  // namespace

FwUpgrade::FwUpgrade(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

bool FwUpgrade::setFirmwareUpgrade(int type, String16 path) {
    Parcel request;
    request.writeString16(path);
    request.writeInt32(type);
    return sendForBoolUnlessFailed(mTarnMgr, CMD_FW_SET_UPGRADE, request);
}

String16 FwUpgrade::getMcuBinNameToUp(int type) {
    return askForText(mTarnMgr, CMD_FW_GET_MCU_BIN_NAME_TO_UP, type);
}

String16 FwUpgrade::getFwVersion(int type) {
    return askForText(mTarnMgr, CMD_FW_GET_VERSION, type);
}

String16 FwUpgrade::getFwOtakey(int type) {
    return askForText(mTarnMgr, CMD_FW_GET_OTAKEY, type);
}

String16 FwUpgrade::getFwInfoTypecList() {
    return askForTextUnlessFailed(mTarnMgr, CMD_FW_GET_INFO_TYPEC_LIST);
}

bool FwUpgrade::getFwMcuList(std::vector<EntityFwInfoMcu>& list) {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_FW_GET_MCU_LIST, &reply) == -1) return false;
    const int32_t count = reply.readInt32();
    TLOGD("getFwMcuList list_num = %d", count);
    readRecords(reply, recordsToRead(count, kMcuFields), readMcu, &list);
    return true;
}

String16 FwUpgrade::getFwTargetVersion(int type) {
    return askForText(mTarnMgr, CMD_FW_GET_TARGET_VERSION, type);
}

String16 FwUpgrade::getFwTargetBinPath(int type) {
    return askForText(mTarnMgr, CMD_FW_GET_TARGET_BIN_PATH, type);
}

}  // namespace android
