#include "modules/BurnKeyCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@BurnKeyCtrl"
#include "log/Log.h"

namespace android {

namespace {

constexpr int kKeyFields = 6;

EntitySwKey readKey(const Parcel& reply) {
    EntitySwKey key;
    key.keyId = reply.readInt32();
    key.keyText1 = readUtf8(reply);
    key.keyText2 = readUtf8(reply);
    key.keyFlag1 = reply.readBool();
    key.keyText3 = readUtf8(reply);
    key.keyFlag2 = reply.readBool();
    return key;
}

}  // namespace

BurnKeyCtrl::BurnKeyCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {
    TLOGD("BurnKeyCtrl::BurnKeyCtrl");
}

bool BurnKeyCtrl::getSupportBurnKeyList(std::vector<EntitySwKey>* list) {
    TLOGD("[%s] ++ \n", __func__);
    list->clear();
    Parcel reply;
    const int status = mTarnMgr->exeCmdSet_Parcel(CMD_BURN_KEY_GET_SUPPORT_LIST, &reply);
    if (status != 0) {
        TLOGE("[%s]  error, ret = %d\n", __func__, status);
        return false;
    }
    readList(reply, kKeyFields, readKey, list);
    return true;
}

bool BurnKeyCtrl::setBurnKey(_EnumBurnKeyType type, String16 key) {
    TLOGD("BurnKeyCtrl::setBurnKey");
    Parcel request;
    request.writeInt32(type);
    request.writeString16(key);
    return mTarnMgr->exeCmdSet_Int(CMD_BURN_KEY_SET_KEY, request) != 0;
}

bool BurnKeyCtrl::setCleanBurnKey(_EnumBurnKeyType type) {
    TLOGD("BurnKeyCtrl::setCleanBurnKey");
    Parcel request;
    request.writeInt32(type);
    return mTarnMgr->exeCmdSet_Int(CMD_BURN_KEY_CLEAN_KEY, request) != 0;
}

String16 BurnKeyCtrl::getBurnKey(_EnumBurnKeyType type) {
    TLOGD("BurnKeyCtrl::getBurnKey");
    return askForText(mTarnMgr, CMD_BURN_KEY_GET_KEY, type);
}

String16 BurnKeyCtrl::getBurnKeyVersion(_EnumBurnKeyType type) {
    TLOGD("BurnKeyCtrl::getBurnKeyVersion");
    return askForText(mTarnMgr, CMD_BURN_KEY_GET_KEY_VERSION, type);
}

}  // namespace android
