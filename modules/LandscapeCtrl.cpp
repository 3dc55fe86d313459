#include "modules/LandscapeCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@LandscapeCtrl"
#define TARN_LOG_PINNED
#include "log/Log.h"

namespace android {

LandscapeCtrl::LandscapeCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {
    TLOGD_AT(29, "LandscapeCtrl::LandscapeCtrl");
}

bool LandscapeCtrl::setLandscapeAppList(std::vector<std::string> apps) {
    TLOGD_AT(53, "[%s] ++ \n", __func__);
    std::vector<String16> texts;
    texts.reserve(apps.size());
    for (const std::string& app : apps) texts.push_back(String16(app.data(), app.size()));
    Parcel request;
    request.writeString16Vector(texts);
    Parcel reply;
    const int status = mTarnMgr->exeCmdSet_Parcel(CMD_LANDSCAPE_SET_APP_LIST, request, &reply);
    if (status != 0) {
        TLOGE_AT(70, "[%s]  error, ret = %d\n", __func__, status);
        return false;
    }
    reply.setDataPosition(0);
    // The service sends one more word in front of the boolean.
    reply.readInt32();
    return reply.readBool();
}

std::vector<std::string> LandscapeCtrl::getLandscapeAppList() {
    TLOGD_AT(35, "[%s] ++ \n", __func__);
    std::vector<std::string> apps;
    Parcel reply;
    const int status = mTarnMgr->exeCmdSet_Parcel(CMD_LANDSCAPE_GET_APP_LIST, &reply);
    if (status != 0) {
        TLOGE_AT(46, "[%s]  error, ret = %d\n", __func__, status);
        return apps;
    }
    reply.setDataPosition(0);
    readList(reply, 1, readUtf8, &apps);
    return apps;
}

}  // namespace android
