#include "modules/AtCfgControl.h"

#include <utility>

#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@AtCfgControl"
#include "log/Log.h"

namespace android {

AtCfgControl::AtCfgControl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

String16 AtCfgControl::readWidevinevKey() {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_AT_CFG_CTRL_READ_WVKEYBOX, &reply) != 0) {
        TLOGE("exeCmdSet_Parcel:CMD_AT_CFG_CTRL_READ_WVKEYBOX error!\n");
        return String16();
    }
    return reply.readString16();
}

bool AtCfgControl::installWidevineKey(String16 keybox) {
    Parcel request;
    request.writeString16(keybox);
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_AT_CFG_CTRL_INSTALL_WVKEYBOX, request, &reply) != 0) {
        TLOGE("exeCmdSet_Parcel:CMD_AT_CFG_CTRL_INSTALL_WVKEYBOX error!\n");
        return false;
    }
    return reply.readBool();
}

bool AtCfgControl::deleteWidevineKey() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AT_CFG_CTRL_DELETE_WVKEYBOX);
}

String16 AtCfgControl::readAttestationKey() {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_AT_CFG_CTRL_READ_ATTESTATIONKEY, &reply) != 0) {
        TLOGE("exeCmdSet_Parcel:CMD_AT_CFG_CTRL_READ_ATTESTATIONKEY error!\n");
        return String16();
    }
    return reply.readString16();
}

bool AtCfgControl::installAttestationKey(String16 key) {
    Parcel request;
    request.writeString16(key);
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_AT_CFG_CTRL_INSTALL_ATTESTATIONKEY, request, &reply) != 0) {
        TLOGE("exeCmdSet_Parcel:CMD_AT_CFG_CTRL_INSTALL_ATTESTATIONKEY error!\n");
        return false;
    }
    return reply.readBool();
}

bool AtCfgControl::deleteAttestationKey() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AT_CFG_CTRL_DELETE_ATTESTATIONKEY);
}

bool AtCfgControl::setString(char* key, char* value) {
    Parcel request;
    request.writeString16(String16(key));
    request.writeString16(String16(value));
    return mTarnMgr->exeCmdSet_Int(CMD_AT_CFG_CTRL_SET_STRING, request) != 0;
}

char* AtCfgControl::getString(char* key) {
    Parcel request;
    request.writeString16(String16(key));
    Parcel reply;
    const int status = mTarnMgr->exeCmdSet_Parcel(CMD_AT_CFG_CTRL_GET_STRING, request, &reply);
    return keep(status != -1 ? readUtf8(reply) : std::string());
}

bool AtCfgControl::setInteger(char* key, int value) {
    Parcel request;
    request.writeString16(String16(key));
    request.writeInt32(value);
    return mTarnMgr->exeCmdSet_Int(CMD_AT_CFG_CTRL_SET_INTEGER, request) != 0;
}

int AtCfgControl::getInteger(char* key) {
    Parcel request;
    request.writeString16(String16(key));
    return sendForIntUnlessFailed(mTarnMgr, CMD_AT_CFG_CTRL_GET_INTEGER, request);
}

char* AtCfgControl::keep(std::string text) {
    AutoMutex guard(mTextsLock);
    std::string& kept = mTexts[std::this_thread::get_id()];
    kept = std::move(text);
    return kept.data();
}

}  // namespace android
