#pragma once

#include <binder/Parcel.h>
#include <utils/String16.h>
#include <utils/String8.h>

#include <string>
#include <vector>

namespace android {

// Shapes of replies that several controllers share. The status is what exeCmdSet_Parcel returned;
// "failed" is exactly -1. A controller that tests for 0 instead spells its test out.

inline std::string toUtf8(const String16& text) {
    const String8 utf8(text);
    return std::string(utf8.c_str(), utf8.size());
}

inline std::string readUtf8(const Parcel& reply) {
    return toUtf8(reply.readString16());
}

inline bool boolUnlessFailed(int status, const Parcel& reply) {
    return status != -1 && reply.readBool();
}

inline int intUnlessFailed(int status, const Parcel& reply) {
    return status != -1 ? reply.readInt32() : -1;
}

inline String16 textUnlessFailed(int status, const Parcel& reply) {
    return status != -1 ? reply.readString16() : String16();
}

/**
 * Appends a counted list of records. The count is the service's and is trusted: behind the end of
 * a short reply the records read as zeros and empty texts and are appended all the same.
 */
template <typename Record>
void readList(const Parcel& reply, Record (*readRecord)(const Parcel&), std::vector<Record>* list) {
    const int32_t count = reply.readInt32();
    for (int32_t i = 0; i < count; i++) list->push_back(readRecord(reply));
}

}  // namespace android
