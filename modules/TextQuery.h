#pragma once

#include <binder/Parcel.h>
#include <tarn/TarnManager.h>
#include <utils/String16.h>

namespace android {

/**
 * Asks for the text that belongs to a number, which travels in a parcel of its own. The status is
 * not looked at: after a failure the reply is empty and so is the text.
 */
inline String16 askForText(const sp<TarnManager>& manager, int cmd, int number) {
    Parcel request;
    request.writeInt32(number);
    Parcel reply;
    manager->exeCmdSet_Parcel(cmd, request, &reply);
    return reply.readString16();
}

}  // namespace android
