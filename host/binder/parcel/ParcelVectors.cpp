#define LOG_TAG "Parcel"

// Vectors: an int32 count, then the elements.

#include <binder/Parcel.h>
#include <log/log.h>

#include <cstring>

#include "LogLimit.h"
#include "ParcelLayout.h"

namespace android {

using parcel::kMaxSize;

namespace {

// Reads a count; a negative one declares the vector absent. No element takes less than a byte, so
// a count above what is left is refused before anything is allocated for it.
status_t readCount(const Parcel& source, int32_t* outCount) {
    int32_t count;
    const status_t status = source.readInt32(&count);
    if (status != NO_ERROR) return status;
    if (count > 0 && static_cast<size_t>(count) > source.dataAvail()) {
        if (parcel::mayLog()) {
            ALOGW("Count %d exceeds the %zu bytes that are left", count, source.dataAvail());
        }
        return BAD_VALUE;
    }
    *outCount = count;
    return NO_ERROR;
}

status_t readCountOfPresent(const Parcel& source, size_t* outCount) {
    int32_t count;
    const status_t status = readCount(source, &count);
    if (status != NO_ERROR) return status;
    if (count < 0) return UNEXPECTED_NULL;
    *outCount = static_cast<size_t>(count);
    return NO_ERROR;
}

template <typename T>
status_t writeCount(Parcel* target, const std::vector<T>& values) {
    if (values.size() > kMaxSize) return BAD_VALUE;
    return target->writeInt32(static_cast<int32_t>(values.size()));
}

// Elements that lie in the parcel as they lie in memory.
template <typename T>
status_t writePlain(Parcel* target, const std::vector<T>& values) {
    if (values.size() > kMaxSize / sizeof(T)) return BAD_VALUE;
    const status_t status = writeCount(target, values);
    return status == NO_ERROR ? target->write(values.data(), values.size() * sizeof(T)) : status;
}

template <typename T>
status_t readPlain(const Parcel& source, std::vector<T>* values) {
    size_t count;
    const status_t status = readCountOfPresent(source, &count);
    if (status != NO_ERROR) return status;
    if (count > kMaxSize / sizeof(T)) return BAD_VALUE;
    const void* data = source.readInplace(count * sizeof(T));
    if (data == nullptr) return BAD_VALUE;
    values->resize(count);
    if (count > 0) memcpy(values->data(), data, count * sizeof(T));
    return NO_ERROR;
}

// Elements that take an int32 word each.
template <typename T>
status_t writeWords(Parcel* target, const std::vector<T>& values) {
    if (values.size() > kMaxSize / sizeof(int32_t)) return BAD_VALUE;
    const status_t status = writeCount(target, values);
    if (status != NO_ERROR) return status;
    char* room = static_cast<char*>(target->writeInplace(values.size() * sizeof(int32_t)));
    if (room == nullptr) return BAD_VALUE;
    for (const T value : values) {
        const int32_t word = value;
        memcpy(room, &word, sizeof(word));
        room += sizeof(word);
    }
    return NO_ERROR;
}

template <typename T>
status_t readWords(const Parcel& source, std::vector<T>* values) {
    size_t count;
    const status_t status = readCountOfPresent(source, &count);
    if (status != NO_ERROR) return status;
    if (count > kMaxSize / sizeof(int32_t)) return BAD_VALUE;
    const char* data = static_cast<const char*>(source.readInplace(count * sizeof(int32_t)));
    if (data == nullptr) return BAD_VALUE;
    values->clear();
    values->reserve(count);
    for (size_t i = 0; i < count; i++) {
        int32_t word;
        memcpy(&word, data + i * sizeof(word), sizeof(word));
        values->push_back(static_cast<T>(word));
    }
    return NO_ERROR;
}

// Elements that have a form of their own. They are added one by one as they are read, so that a
// large count alone allocates nothing.
template <typename T, typename U>
status_t writeEach(Parcel* target, const std::vector<T>& values, status_t (Parcel::*write)(U)) {
    status_t status = writeCount(target, values);
    for (auto it = values.begin(); status == NO_ERROR && it != values.end(); ++it) {
        status = (target->*write)(*it);
    }
    return status;
}

template <typename T>
status_t readEach(const Parcel& source, std::vector<T>* values,
                  status_t (Parcel::*read)(T*) const) {
    size_t count;
    status_t status = readCountOfPresent(source, &count);
    if (status != NO_ERROR) return status;
    values->clear();
    for (size_t i = 0; status == NO_ERROR && i < count; i++) {
        values->emplace_back();
        status = (source.*read)(&values->back());
    }
    return status;
}

template <typename T>
status_t writeNullable(Parcel* target, const std::unique_ptr<std::vector<T>>& values,
                       status_t (Parcel::*write)(const std::vector<T>&)) {
    return values != nullptr ? (target->*write)(*values) : target->writeInt32(-1);
}

// Reads the count ahead; true if the vector is there and is to be read from the same position.
template <typename T>
bool beginNullable(const Parcel& source, std::unique_ptr<std::vector<T>>* out, status_t* status) {
    const size_t start = source.dataPosition();
    int32_t count;
    *status = source.readInt32(&count);
    if (*status != NO_ERROR) return false;
    out->reset();
    if (count == -1) return false;
    source.setDataPosition(start);
    *out = std::make_unique<std::vector<T>>();
    return true;
}

template <typename T>
status_t readNullable(const Parcel& source, std::unique_ptr<std::vector<T>>* out,
                      status_t (Parcel::*read)(std::vector<T>*) const) {
    status_t status;
    return beginNullable(source, out, &status) ? (source.*read)(out->get()) : status;
}

}  // namespace

status_t Parcel::writeByteVectorInternal(const int8_t* data, size_t size) {
    if (size > kMaxSize) return BAD_VALUE;
    const status_t status = writeInt32(static_cast<int32_t>(size));
    return status == NO_ERROR ? write(data, size) : status;
}

status_t Parcel::writeByteVector(const std::vector<int8_t>& val) {
    return writePlain(this, val);
}

status_t Parcel::writeByteVector(const std::unique_ptr<std::vector<int8_t>>& val) {
    return writeNullable<int8_t>(this, val, &Parcel::writeByteVector);
}

status_t Parcel::writeByteVector(const std::vector<uint8_t>& val) {
    return writePlain(this, val);
}

status_t Parcel::writeByteVector(const std::unique_ptr<std::vector<uint8_t>>& val) {
    return writeNullable<uint8_t>(this, val, &Parcel::writeByteVector);
}

status_t Parcel::readByteVector(std::vector<int8_t>* val) const {
    return readPlain(*this, val);
}

status_t Parcel::readByteVector(std::unique_ptr<std::vector<int8_t>>* val) const {
    return readNullable<int8_t>(*this, val, &Parcel::readByteVector);
}

status_t Parcel::readByteVector(std::vector<uint8_t>* val) const {
    return readPlain(*this, val);
}

status_t Parcel::readByteVector(std::unique_ptr<std::vector<uint8_t>>* val) const {
    return readNullable<uint8_t>(*this, val, &Parcel::readByteVector);
}

status_t Parcel::writeInt32Vector(const std::vector<int32_t>& val) {
    return writePlain(this, val);
}

status_t Parcel::writeInt32Vector(const std::unique_ptr<std::vector<int32_t>>& val) {
    return writeNullable(this, val, &Parcel::writeInt32Vector);
}

status_t Parcel::readInt32Vector(std::vector<int32_t>* val) const {
    return readPlain(*this, val);
}

status_t Parcel::readInt32Vector(std::unique_ptr<std::vector<int32_t>>* val) const {
    return readNullable(*this, val, &Parcel::readInt32Vector);
}

status_t Parcel::writeInt64Vector(const std::vector<int64_t>& val) {
    return writePlain(this, val);
}

status_t Parcel::writeInt64Vector(const std::unique_ptr<std::vector<int64_t>>& val) {
    return writeNullable(this, val, &Parcel::writeInt64Vector);
}

status_t Parcel::readInt64Vector(std::vector<int64_t>* val) const {
    return readPlain(*this, val);
}

status_t Parcel::readInt64Vector(std::unique_ptr<std::vector<int64_t>>* val) const {
    return readNullable(*this, val, &Parcel::readInt64Vector);
}

status_t Parcel::writeUint64Vector(const std::vector<uint64_t>& val) {
    return writePlain(this, val);
}

status_t Parcel::writeUint64Vector(const std::unique_ptr<std::vector<uint64_t>>& val) {
    return writeNullable(this, val, &Parcel::writeUint64Vector);
}

status_t Parcel::readUint64Vector(std::vector<uint64_t>* val) const {
    return readPlain(*this, val);
}

status_t Parcel::readUint64Vector(std::unique_ptr<std::vector<uint64_t>>* val) const {
    return readNullable(*this, val, &Parcel::readUint64Vector);
}

status_t Parcel::writeFloatVector(const std::vector<float>& val) {
    return writePlain(this, val);
}

status_t Parcel::writeFloatVector(const std::unique_ptr<std::vector<float>>& val) {
    return writeNullable(this, val, &Parcel::writeFloatVector);
}

status_t Parcel::readFloatVector(std::vector<float>* val) const {
    return readPlain(*this, val);
}

status_t Parcel::readFloatVector(std::unique_ptr<std::vector<float>>* val) const {
    return readNullable(*this, val, &Parcel::readFloatVector);
}

status_t Parcel::writeDoubleVector(const std::vector<double>& val) {
    return writePlain(this, val);
}

status_t Parcel::writeDoubleVector(const std::unique_ptr<std::vector<double>>& val) {
    return writeNullable(this, val, &Parcel::writeDoubleVector);
}

status_t Parcel::readDoubleVector(std::vector<double>* val) const {
    return readPlain(*this, val);
}

status_t Parcel::readDoubleVector(std::unique_ptr<std::vector<double>>* val) const {
    return readNullable(*this, val, &Parcel::readDoubleVector);
}

status_t Parcel::writeBoolVector(const std::vector<bool>& val) {
    return writeWords(this, val);
}

status_t Parcel::writeBoolVector(const std::unique_ptr<std::vector<bool>>& val) {
    return writeNullable(this, val, &Parcel::writeBoolVector);
}

status_t Parcel::readBoolVector(std::vector<bool>* val) const {
    return readWords(*this, val);
}

status_t Parcel::readBoolVector(std::unique_ptr<std::vector<bool>>* val) const {
    return readNullable(*this, val, &Parcel::readBoolVector);
}

status_t Parcel::writeCharVector(const std::vector<char16_t>& val) {
    return writeWords(this, val);
}

status_t Parcel::writeCharVector(const std::unique_ptr<std::vector<char16_t>>& val) {
    return writeNullable(this, val, &Parcel::writeCharVector);
}

status_t Parcel::readCharVector(std::vector<char16_t>* val) const {
    return readWords(*this, val);
}

status_t Parcel::readCharVector(std::unique_ptr<std::vector<char16_t>>* val) const {
    return readNullable(*this, val, &Parcel::readCharVector);
}

status_t Parcel::writeString16Vector(const std::vector<String16>& val) {
    return writeEach<String16, const String16&>(this, val, &Parcel::writeString16);
}

status_t Parcel::writeString16Vector(
        const std::unique_ptr<std::vector<std::unique_ptr<String16>>>& val) {
    using Element = std::unique_ptr<String16>;
    if (val == nullptr) return writeInt32(-1);
    return writeEach<Element, const Element&>(this, *val, &Parcel::writeString16);
}

status_t Parcel::readString16Vector(std::vector<String16>* val) const {
    return readEach<String16>(*this, val, &Parcel::readString16);
}

status_t Parcel::readString16Vector(
        std::unique_ptr<std::vector<std::unique_ptr<String16>>>* val) const {
    status_t status;
    if (!beginNullable(*this, val, &status)) return status;
    return readEach<std::unique_ptr<String16>>(*this, val->get(), &Parcel::readString16);
}

status_t Parcel::writeUtf8VectorAsUtf16Vector(const std::vector<std::string>& val) {
    return writeEach<std::string, const std::string&>(this, val, &Parcel::writeUtf8AsUtf16);
}

status_t Parcel::writeUtf8VectorAsUtf16Vector(
        const std::unique_ptr<std::vector<std::unique_ptr<std::string>>>& val) {
    using Element = std::unique_ptr<std::string>;
    if (val == nullptr) return writeInt32(-1);
    return writeEach<Element, const Element&>(this, *val, &Parcel::writeUtf8AsUtf16);
}

status_t Parcel::readUtf8VectorFromUtf16Vector(std::vector<std::string>* val) const {
    return readEach<std::string>(*this, val, &Parcel::readUtf8FromUtf16);
}

status_t Parcel::readUtf8VectorFromUtf16Vector(
        std::unique_ptr<std::vector<std::unique_ptr<std::string>>>* val) const {
    status_t status;
    if (!beginNullable(*this, val, &status)) return status;
    return readEach<std::unique_ptr<std::string>>(*this, val->get(), &Parcel::readUtf8FromUtf16);
}

status_t Parcel::writeStrongBinderVector(const std::vector<sp<IBinder>>& val) {
    return writeEach<sp<IBinder>, const sp<IBinder>&>(this, val, &Parcel::writeStrongBinder);
}

status_t Parcel::writeStrongBinderVector(const std::unique_ptr<std::vector<sp<IBinder>>>& val) {
    return writeNullable(this, val, &Parcel::writeStrongBinderVector);
}

// A null vector may hold null binders, one that must be there may not.
status_t Parcel::readStrongBinderVector(std::unique_ptr<std::vector<sp<IBinder>>>* val) const {
    status_t status;
    if (!beginNullable(*this, val, &status)) return status;
    return readEach<sp<IBinder>>(*this, val->get(), &Parcel::readNullableStrongBinder);
}

status_t Parcel::readStrongBinderVector(std::vector<sp<IBinder>>* val) const {
    return readEach<sp<IBinder>>(*this, val, &Parcel::readStrongBinder);
}

}  // namespace android
