#include "modules/BurnMacCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@BurnMacCtrl"
#include "log/Log.h"

namespace android {

namespace {

constexpr int kMacFields = 5;

EntitySwMac readMac(const Parcel& reply) {
    EntitySwMac mac;
    mac.macId = reply.readInt32();
    mac.macText1 = readUtf8(reply);
    mac.macFlag1 = reply.readBool();
    mac.macText2 = readUtf8(reply);
    mac.macFlag2 = reply.readBool();
    return mac;
}

}  // namespace

BurnMacCtrl::BurnMacCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {
    TLOGD("BurnMacCtrl::BurnMacCtrl");
}

bool BurnMacCtrl::getSupportBurnMacList(std::vector<EntitySwMac>* list) {
    TLOGD("[%s] ++ \n", __func__);
    list->clear();
    Parcel reply;
    const int status = mTarnMgr->exeCmdSet_Parcel(CMD_BURN_MAC_GET_SUPPORT_LIST, &reply);
    if (status != 0) {
        TLOGE("[%s]  error, ret = %d\n", __func__, status);
        return false;
    }
    readList(reply, kMacFields, readMac, list);
    return true;
}

bool BurnMacCtrl::setBurnMac(_EnumBurnMacType type, String16 mac) {
    TLOGD("BurnMacCtrl::setBurnMac");
    Parcel request;
    request.writeInt32(type);
    request.writeString16(mac);
    return mTarnMgr->exeCmdSet_Int(CMD_BURN_MAC_SET_MAC_TEXT, request) != 0;
}

bool BurnMacCtrl::setBurnMac(_EnumBurnMacType type, unsigned char* mac, int len) {
    TLOGD("BurnMacCtrl::setBurnMac");
    Parcel request;
    request.writeInt32(type);
    request.writeByteArray(len, mac);
    Parcel reply;
    mTarnMgr->exeCmdSet_Parcel(CMD_BURN_MAC_SET_MAC_BYTES, request, &reply);
    return reply.readInt32() != 0;
}

String16 BurnMacCtrl::getBurnMac(_EnumBurnMacType type) {
    TLOGD("BurnMacCtrl::getBurnMac");
    return askForText(mTarnMgr, CMD_BURN_MAC_GET_MAC, type);
}

}  // namespace android
