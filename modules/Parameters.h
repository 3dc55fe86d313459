#pragma once

#include <tarn/TarnManager.h>
#include <utils/String16.h>

namespace android {

// The key/value parameters that the touch frame and the remote control have alike.

inline String16 readParameter(const sp<TarnManager>& manager, int cmd, const String16& key) {
    Parcel request;
    request.writeString16(key);
    Parcel reply;
    const int status = manager->exeCmdSet_Parcel(cmd, request, &reply);
    return status != -1 ? reply.readString16() : String16("Unimplemented interface");
}

inline bool writeParameter(const sp<TarnManager>& manager, int cmd, const String16& key,
                           const String16& value) {
    Parcel request;
    request.writeString16(key);
    request.writeString16(value);
    Parcel reply;
    return manager->exeCmdSet_Parcel(cmd, request, &reply) != -1;
}

}  // namespace android
