#include "modules/Replies.h"

#include <algorithm>

#include "protocol/Limits.h"

#define TARN_LOG_TAG "Zunt@Replies"
#include "log/Log.h"

namespace android {

int sendText(const sp<TarnManager>& manager, int cmd, const String16& text) {
    Parcel request;
    request.writeString16(text);
    return manager->exeCmdSet_Int(cmd, request);
}

String16 askForText(const sp<TarnManager>& manager, int cmd) {
    Parcel reply;
    manager->exeCmdSet_Parcel(cmd, &reply);
    return reply.readString16();
}

String16 askForText(const sp<TarnManager>& manager, int cmd, int number) {
    Parcel request;
    request.writeInt32(number);
    Parcel reply;
    manager->exeCmdSet_Parcel(cmd, request, &reply);
    return reply.readString16();
}

String16 askForTextUnlessFailed(const sp<TarnManager>& manager, int cmd) {
    Parcel reply;
    return manager->exeCmdSet_Parcel(cmd, &reply) != -1 ? reply.readString16() : String16();
}

int askForIntUnlessFailed(const sp<TarnManager>& manager, int cmd) {
    Parcel reply;
    return manager->exeCmdSet_Parcel(cmd, &reply) != -1 ? reply.readInt32() : -1;
}

int sendForIntUnlessFailed(const sp<TarnManager>& manager, int cmd, const Parcel& request) {
    Parcel reply;
    return manager->exeCmdSet_Parcel(cmd, request, &reply) != -1 ? reply.readInt32() : -1;
}

bool askForBoolUnlessFailed(const sp<TarnManager>& manager, int cmd) {
    Parcel reply;
    return manager->exeCmdSet_Parcel(cmd, &reply) != -1 && reply.readBool();
}

bool sendForBoolUnlessFailed(const sp<TarnManager>& manager, int cmd, const Parcel& request) {
    Parcel reply;
    return manager->exeCmdSet_Parcel(cmd, request, &reply) != -1 && reply.readBool();
}

bool sendForBoolUnlessFailed(const sp<TarnManager>& manager, int cmd, const String16& text) {
    Parcel request;
    request.writeString16(text);
    return sendForBoolUnlessFailed(manager, cmd, request);
}

std::string readUtf8(const Parcel& reply) {
    const String8 text(reply.readString16());
    return std::string(text.c_str(), text.size());
}

int32_t recordsToRead(int32_t count, int fields) {
    const size_t smallest = static_cast<size_t>(fields) * sizeof(int32_t);
    const auto most = static_cast<int32_t>(tarn::protocol::kMostTransactionBytes / smallest);
    if (count > most)
        TLOGE("a list of %d records: no reply holds more than %d of them", count, most);
    return std::min(count, most);
}

}  // namespace android
