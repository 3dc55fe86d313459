#define LOG_TAG "Parcel"

// File descriptors do not travel on a host: each attempt is refused. Blobs travel in place,
// whatever their size.

#include <binder/Parcel.h>
#include <log/log.h>

#include "ParcelLayout.h"

namespace android {

namespace {

// The blob type word of data that follows in the parcel itself.
constexpr int32_t kBlobInPlace = 0;

}  // namespace

bool Parcel::allowFds() const {
    return mAllowFds;
}

bool Parcel::pushAllowFds(bool allowFds) {
    const bool previous = mAllowFds;
    if (!allowFds) mAllowFds = false;
    return previous;
}

void Parcel::restoreAllowFds(bool lastValue) {
    mAllowFds = lastValue;
}

bool Parcel::hasFileDescriptors() const {
    return false;
}

status_t Parcel::writeFileDescriptor(int, bool) {
    ALOGE("File descriptors cannot be sent on this host");
    return mAllowFds ? INVALID_OPERATION : FDS_NOT_ALLOWED;
}

status_t Parcel::writeDupFileDescriptor(int fd) {
    return writeFileDescriptor(fd);
}

status_t Parcel::writeNativeHandle(const native_handle* handle) {
    if (handle == nullptr || handle->version != sizeof(native_handle)) return BAD_TYPE;
    return writeFileDescriptor(-1);
}

native_handle* Parcel::readNativeHandle() const {
    return nullptr;
}

int Parcel::readFileDescriptor() const {
    return BAD_TYPE;
}

status_t Parcel::writeBlob(size_t len, bool mutableCopy, WritableBlob* outBlob) {
    if (len > parcel::kMaxSize) return BAD_VALUE;
    const status_t status = writeInt32(kBlobInPlace);
    if (status != NO_ERROR) return status;
    void* room = writeInplace(len);
    if (room == nullptr) return NO_MEMORY;
    outBlob->init(-1, room, len, mutableCopy);
    return NO_ERROR;
}

status_t Parcel::readBlob(size_t len, ReadableBlob* outBlob) const {
    int32_t type;
    const status_t status = readInt32(&type);
    if (status != NO_ERROR) return status;
    if (type != kBlobInPlace) return BAD_VALUE;
    const void* data = readInplace(len);
    if (data == nullptr) return BAD_VALUE;
    outBlob->init(-1, const_cast<void*>(data), len, false);
    return NO_ERROR;
}

Parcel::Blob::Blob() {
    clear();
}

Parcel::Blob::~Blob() {
    release();
}

void Parcel::Blob::init(int fd, void* data, size_t size, bool isMutable) {
    mFd = fd;
    mData = data;
    mSize = size;
    mMutable = isMutable;
}

void Parcel::Blob::release() {
    clear();
}

void Parcel::Blob::clear() {
    init(-1, nullptr, 0, false);
}

}  // namespace android
