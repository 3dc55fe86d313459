#define LOG_TAG "Parcel"

// Reading scalars, raw bytes and strings.

#include <binder/Parcel.h>
#include <binder/Parcelable.h>
#include <log/log.h>
#include <utils/String8.h>
#include <utils/Unicode.h>

#include <cstring>

#include "LogLimit.h"
#include "ParcelLayout.h"
#include "ParcelObjectTable.h"

namespace android {

using parcel::kMaxSize;
using parcel::padded;

// Flat reads must not touch what belongs to an object.
status_t Parcel::validateReadData(size_t upperBound) const {
    if (!parcel::overlapsObject(mObjects, mObjectsSize, mDataPos, upperBound)) return NO_ERROR;
    if (parcel::mayLog()) ALOGE("Attempt to read from protected data in Parcel %p", this);
    return PERMISSION_DENIED;
}

template <typename T>
status_t Parcel::readAligned(T* pArg) const {
    static_assert(padded(sizeof(T)) == sizeof(T));
    const size_t end = mDataPos + sizeof(T);
    if (end > mDataSize) return NOT_ENOUGH_DATA;
    if (mObjectsSize > 0) {
        const status_t status = validateReadData(end);
        if (status != NO_ERROR) {
            mDataPos = end;
            return status;
        }
    }
    memcpy(pArg, mData + mDataPos, sizeof(T));
    mDataPos = end;
    return NO_ERROR;
}

template <typename T>
T Parcel::readAligned() const {
    T value{};
    return readAligned(&value) == NO_ERROR ? value : T{};
}

status_t Parcel::read(void* outData, size_t len) const {
    if (len > kMaxSize) return BAD_VALUE;
    const size_t end = mDataPos + padded(len);
    if (end > mDataSize) return NOT_ENOUGH_DATA;
    if (mObjectsSize > 0) {
        const status_t status = validateReadData(end);
        if (status != NO_ERROR) {
            mDataPos = end;
            return status;
        }
    }
    if (len > 0) memcpy(outData, mData + mDataPos, len);
    mDataPos = end;
    return NO_ERROR;
}

const void* Parcel::readInplace(size_t len) const {
    if (len > kMaxSize) return nullptr;
    const size_t start = mDataPos;
    const size_t end = start + padded(len);
    if (end > mDataSize) return nullptr;
    const bool allowed = mObjectsSize == 0 || validateReadData(end) == NO_ERROR;
    mDataPos = end;
    return allowed ? mData + start : nullptr;
}

int32_t Parcel::readInt32() const {
    return readAligned<int32_t>();
}

status_t Parcel::readInt32(int32_t* pArg) const {
    return readAligned(pArg);
}

uint32_t Parcel::readUint32() const {
    return readAligned<uint32_t>();
}

status_t Parcel::readUint32(uint32_t* pArg) const {
    return readAligned(pArg);
}

int64_t Parcel::readInt64() const {
    return readAligned<int64_t>();
}

status_t Parcel::readInt64(int64_t* pArg) const {
    return readAligned(pArg);
}

uint64_t Parcel::readUint64() const {
    return readAligned<uint64_t>();
}

status_t Parcel::readUint64(uint64_t* pArg) const {
    return readAligned(pArg);
}

uintptr_t Parcel::readPointer() const {
    return static_cast<uintptr_t>(readAligned<binder_size_t>());
}

status_t Parcel::readPointer(uintptr_t* pArg) const {
    binder_size_t value;
    const status_t status = readAligned(&value);
    if (status == NO_ERROR) *pArg = static_cast<uintptr_t>(value);
    return status;
}

float Parcel::readFloat() const {
    return readAligned<float>();
}

status_t Parcel::readFloat(float* pArg) const {
    return readAligned(pArg);
}

double Parcel::readDouble() const {
    return readAligned<double>();
}

status_t Parcel::readDouble(double* pArg) const {
    return readAligned(pArg);
}

intptr_t Parcel::readIntPtr() const {
    return readAligned<intptr_t>();
}

status_t Parcel::readIntPtr(intptr_t* pArg) const {
    return readAligned(pArg);
}

bool Parcel::readBool() const {
    return readInt32() != 0;
}

status_t Parcel::readBool(bool* pArg) const {
    int32_t value = 0;
    const status_t status = readInt32(&value);
    *pArg = value != 0;
    return status;
}

char16_t Parcel::readChar() const {
    return static_cast<char16_t>(readInt32());
}

status_t Parcel::readChar(char16_t* pArg) const {
    int32_t value = 0;
    const status_t status = readInt32(&value);
    *pArg = static_cast<char16_t>(value);
    return status;
}

int8_t Parcel::readByte() const {
    return static_cast<int8_t>(readInt32());
}

status_t Parcel::readByte(int8_t* pArg) const {
    int32_t value = 0;
    const status_t status = readInt32(&value);
    *pArg = static_cast<int8_t>(value);
    return status;
}

const char* Parcel::readCString() const {
    if (mDataPos >= mDataSize) return nullptr;
    const char* text = reinterpret_cast<const char*>(mData + mDataPos);
    const void* end = memchr(text, '\0', mDataSize - mDataPos);
    if (end == nullptr) return nullptr;
    mDataPos += padded(static_cast<const char*>(end) - text + 1);
    return text;
}

namespace {

// Reads a length word, that many units and their terminator; null if any of it is missing or
// wrong. The units may be unaligned.
const void* readTerminated(const Parcel& source, size_t unitSize, size_t* outLength) {
    *outLength = 0;
    const int32_t length = source.readInt32();
    if (length < 0 || length == INT32_MAX) return nullptr;
    const size_t bytes = static_cast<size_t>(length) * unitSize;
    const char* text = static_cast<const char*>(source.readInplace(bytes + unitSize));
    if (text == nullptr) return nullptr;
    for (size_t i = 0; i < unitSize; i++) {
        if (text[bytes + i] != '\0') return nullptr;
    }
    *outLength = static_cast<size_t>(length);
    return text;
}

}  // namespace

status_t Parcel::readString8(String8* pArg) const {
    size_t length;
    const void* text = readTerminated(*this, sizeof(char), &length);
    if (text == nullptr) {
        *pArg = String8();
        return UNEXPECTED_NULL;
    }
    return pArg->setTo(static_cast<const char*>(text), length);
}

String8 Parcel::readString8() const {
    String8 text;
    if (readString8(&text) != NO_ERROR && parcel::mayLog()) {
        ALOGE("Reading a NULL string not supported here.");
    }
    return text;
}

const char16_t* Parcel::readString16Inplace(size_t* outLen) const {
    return static_cast<const char16_t*>(readTerminated(*this, sizeof(char16_t), outLen));
}

status_t Parcel::readString16(String16* pArg) const {
    size_t length;
    const char16_t* text = readString16Inplace(&length);
    if (text == nullptr) {
        *pArg = String16();
        return UNEXPECTED_NULL;
    }
    return pArg->setTo(text, length);
}

String16 Parcel::readString16() const {
    String16 text;
    if (readString16(&text) != NO_ERROR && parcel::mayLog()) {
        ALOGE("Reading a NULL string not supported here.");
    }
    return text;
}

namespace {

// Reads a value that a length of -1 declares absent.
template <typename T>
status_t readNullable(const Parcel& source, std::unique_ptr<T>* out,
                      status_t (Parcel::*read)(T*) const) {
    const size_t start = source.dataPosition();
    int32_t length;
    const status_t status = source.readInt32(&length);
    if (status != NO_ERROR) return status;
    out->reset();
    if (length == -1) return NO_ERROR;
    source.setDataPosition(start);
    *out = std::make_unique<T>();
    return (source.*read)(out->get());
}

}  // namespace

status_t Parcel::readString16(std::unique_ptr<String16>* pArg) const {
    return readNullable<String16>(*this, pArg, &Parcel::readString16);
}

status_t Parcel::readUtf8FromUtf16(std::string* str) const {
    size_t units;
    const char16_t* text = readString16Inplace(&units);
    if (text == nullptr) return UNEXPECTED_NULL;
    if (units == 0) {
        str->clear();
        return NO_ERROR;
    }
    const ssize_t length = utf16_to_utf8_length(text, units);
    if (length < 0) return BAD_VALUE;
    // The conversion ends with a NUL of its own.
    str->resize(static_cast<size_t>(length) + 1);
    utf16_to_utf8(text, units, str->data(), str->size());
    str->resize(static_cast<size_t>(length));
    return NO_ERROR;
}

status_t Parcel::readUtf8FromUtf16(std::unique_ptr<std::string>* str) const {
    return readNullable<std::string>(*this, str, &Parcel::readUtf8FromUtf16);
}

status_t Parcel::readParcelable(Parcelable* parcelable) const {
    int32_t present = 0;
    const status_t status = readInt32(&present);
    if (status != NO_ERROR) return status;
    return present == 1 ? parcelable->readFromParcel(this) : UNEXPECTED_NULL;
}

}  // namespace android
