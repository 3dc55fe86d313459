// Writing scalars, raw bytes and strings.

#include <binder/Parcel.h>
#include <binder/Parcelable.h>
#include <utils/String8.h>
#include <utils/Unicode.h>

#include <cstring>

#include "ParcelLayout.h"

namespace android {

using parcel::kMaxSize;
using parcel::padded;

namespace {

// The status of a write that got no room: the allocation's failure where that is why.
status_t refusal(status_t error) {
    return error != NO_ERROR ? error : NO_MEMORY;
}

}  // namespace

template <typename T>
status_t Parcel::writeAligned(T val) {
    static_assert(padded(sizeof(T)) == sizeof(T));
    if (mDataPos + sizeof(T) > mDataCapacity) {
        const status_t status = growData(sizeof(T));
        if (status != NO_ERROR) return status;
    }
    memcpy(mData + mDataPos, &val, sizeof(T));
    return finishWrite(sizeof(T));
}

status_t Parcel::write(const void* data, size_t len) {
    if (len > kMaxSize) return BAD_VALUE;
    void* room = writeInplace(len);
    if (room == nullptr) return len == 0 ? mError : refusal(mError);
    if (len > 0) memcpy(room, data, len);
    return NO_ERROR;
}

void* Parcel::writeInplace(size_t len) {
    if (len > kMaxSize) return nullptr;
    const size_t length = padded(len);
    if (mDataPos + length > mDataCapacity && growData(length) != NO_ERROR) return nullptr;
    uint8_t* room = mData + mDataPos;
    for (size_t i = len; i < length; i++) room[i] = 0;
    finishWrite(length);
    return room;
}

status_t Parcel::writeUnpadded(const void* data, size_t len) {
    if (len > kMaxSize) return BAD_VALUE;
    if (mDataPos + len > mDataCapacity) {
        const status_t status = growData(len);
        if (status != NO_ERROR) return status;
    }
    if (len > 0) memcpy(mData + mDataPos, data, len);
    return finishWrite(len);
}

status_t Parcel::writeInt32(int32_t val) {
    return writeAligned(val);
}

status_t Parcel::writeUint32(uint32_t val) {
    return writeAligned(val);
}

status_t Parcel::writeInt64(int64_t val) {
    return writeAligned(val);
}

status_t Parcel::writeUint64(uint64_t val) {
    return writeAligned(val);
}

status_t Parcel::writePointer(uintptr_t val) {
    return writeAligned<binder_size_t>(val);
}

status_t Parcel::writeFloat(float val) {
    return writeAligned(val);
}

status_t Parcel::writeDouble(double val) {
    return writeAligned(val);
}

status_t Parcel::writeBool(bool val) {
    return writeInt32(val ? 1 : 0);
}

status_t Parcel::writeChar(char16_t val) {
    return writeInt32(val);
}

status_t Parcel::writeByte(int8_t val) {
    return writeInt32(val);
}

status_t Parcel::writeByteArray(size_t len, const uint8_t* val) {
    if (len > kMaxSize) return BAD_VALUE;
    if (val == nullptr) return writeInt32(-1);
    const status_t status = writeInt32(static_cast<int32_t>(len));
    return status == NO_ERROR ? write(val, len) : status;
}

status_t Parcel::writeInt32Array(size_t len, const int32_t* val) {
    if (len > kMaxSize) return BAD_VALUE;
    if (val == nullptr) return writeInt32(-1);
    const status_t status = writeInt32(static_cast<int32_t>(len));
    return status == NO_ERROR ? write(val, len * sizeof(*val)) : status;
}

status_t Parcel::writeCString(const char* str) {
    return write(str, strlen(str) + 1);
}

status_t Parcel::writeString8(const String8& str) {
    const size_t length = str.size();
    if (length > kMaxSize) return BAD_VALUE;
    const status_t status = writeInt32(static_cast<int32_t>(length));
    if (status != NO_ERROR) return status;
    void* room = writeInplace(length + 1);
    if (room == nullptr) return refusal(mError);
    memcpy(room, str.string(), length);
    static_cast<char*>(room)[length] = '\0';
    return NO_ERROR;
}

status_t Parcel::writeString16(const String16& str) {
    return writeString16(str.string(), str.size());
}

status_t Parcel::writeString16(const std::unique_ptr<String16>& str) {
    return str != nullptr ? writeString16(*str) : writeInt32(-1);
}

status_t Parcel::writeString16(const char16_t* str, size_t len) {
    if (str == nullptr) return writeInt32(-1);
    if (len >= kMaxSize / sizeof(char16_t)) return BAD_VALUE;
    const status_t status = writeInt32(static_cast<int32_t>(len));
    if (status != NO_ERROR) return status;
    const size_t length = len * sizeof(char16_t);
    void* room = writeInplace(length + sizeof(char16_t));
    if (room == nullptr) return refusal(mError);
    memcpy(room, str, length);
    memset(static_cast<char*>(room) + length, 0, sizeof(char16_t));
    return NO_ERROR;
}

status_t Parcel::writeUtf8AsUtf16(const std::string& str) {
    const uint8_t* source = reinterpret_cast<const uint8_t*>(str.data());
    const ssize_t units = utf8_to_utf16_length(source, str.length());
    if (units < 0 || static_cast<size_t>(units) >= kMaxSize / sizeof(char16_t)) return BAD_VALUE;
    const status_t status = writeInt32(static_cast<int32_t>(units));
    if (status != NO_ERROR) return status;
    void* room = writeInplace((static_cast<size_t>(units) + 1) * sizeof(char16_t));
    if (room == nullptr) return NO_MEMORY;
    utf8_to_utf16(source, str.length(), static_cast<char16_t*>(room), units + 1);
    return NO_ERROR;
}

status_t Parcel::writeUtf8AsUtf16(const std::unique_ptr<std::string>& str) {
    return str != nullptr ? writeUtf8AsUtf16(*str) : writeInt32(-1);
}

status_t Parcel::writeParcelable(const Parcelable& parcelable) {
    const status_t status = writeInt32(1);
    return status == NO_ERROR ? parcelable.writeToParcel(this) : status;
}

status_t Parcel::writeRawNullableParcelable(const Parcelable* parcelable) {
    return parcelable != nullptr ? writeParcelable(*parcelable) : writeInt32(0);
}

}  // namespace android
