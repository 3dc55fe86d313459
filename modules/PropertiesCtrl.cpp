#include "modules/PropertiesCtrl.h"

#include "protocol/Commands.h"

namespace android {

namespace {

int sendTexts(const sp<TarnManager>& manager, int cmd, const char* first, const char* second) {
    Parcel request;
    request.writeString16(String16(first));
    request.writeString16(String16(second));
    Parcel reply;
    return manager->exeCmdSet_Parcel(cmd, request, &reply);
}

}  // namespace

PropertiesCtrl::PropertiesCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int PropertiesCtrl::property_get(const char* key, char* /*value*/, const char* default_value) {
    // The answer is dropped on purpose: callers see -1 and an untouched buffer, always.
    sendTexts(mTarnMgr, CMD_PROPERTIES_GET, key, default_value);
    return -1;
}

int PropertiesCtrl::property_set(const char* key, const char* value) {
    return sendTexts(mTarnMgr, CMD_PROPERTIES_SET, key, value);
}

}  // namespace android
