#define LOG_TAG "Parcel"

// A parcel's memory: allocation, size, position and whole contents.

#include <binder/Parcel.h>
#include <log/log.h>

#include <algorithm>
#include <cstring>

#include "Blocks.h"
#include "ParcelLayout.h"
#include "ParcelObjectTable.h"

namespace android {

using parcel::giveBlock;
using parcel::kMaxSize;
using parcel::kSmallestBlock;
using parcel::ObjectTable;
using parcel::takeBlock;

Parcel::Parcel() {
    initState();
}

Parcel::~Parcel() {
    freeDataNoInit();
}

void Parcel::initState() {
    mError = NO_ERROR;
    mData = nullptr;
    mDataSize = 0;
    mDataCapacity = 0;
    mDataPos = 0;
    mObjects = nullptr;
    mObjectsSize = 0;
    mObjectsCapacity = 0;
    mNextObjectHint = 0;
    mObjectsSorted = true;
    mRequestHeaderPresent = false;
    mWorkSourceRequestHeaderPosition = 0;
    mFdsKnown = true;
    mHasFds = false;
    mAllowFds = true;
    mOwner = nullptr;
    mOwnerCookie = nullptr;
    mOpenAshmemSize = 0;
}

void Parcel::freeData() {
    freeDataNoInit();
    initState();
}

void Parcel::freeDataNoInit() {
    if (mObjects != nullptr) releaseObjects();
    giveBlock(mData, mDataCapacity);
}

void Parcel::releaseObjects() {
    ObjectTable(mObjects, mObjectsSize, mObjectsCapacity).clear();
}

const uint8_t* Parcel::data() const {
    return mData;
}

size_t Parcel::dataSize() const {
    return std::max(mDataSize, mDataPos);
}

size_t Parcel::dataAvail() const {
    return dataSize() - mDataPos;
}

size_t Parcel::dataPosition() const {
    return mDataPos;
}

size_t Parcel::dataCapacity() const {
    return mDataCapacity;
}

status_t Parcel::errorCheck() const {
    return mError;
}

void Parcel::setError(status_t err) {
    mError = err;
}

void Parcel::setDataPosition(size_t pos) const {
    LOG_ALWAYS_FATAL_IF(pos > kMaxSize, "position too big: %zu", pos);
    mDataPos = pos;
}

status_t Parcel::setDataSize(size_t size) {
    const status_t status = continueWrite(size);
    if (status == NO_ERROR) mDataSize = size;
    return status;
}

status_t Parcel::setDataCapacity(size_t size) {
    if (size > kMaxSize) return BAD_VALUE;
    return size > mDataCapacity ? continueWrite(size) : NO_ERROR;
}

// The bytes may be the parcel's own, so the old block is freed after they are copied. Setting no
// bytes frees the memory of a parcel that has some, and allocates an empty block for a new one.
status_t Parcel::setData(const uint8_t* buffer, size_t len) {
    if (len > kMaxSize) return BAD_VALUE;
    uint8_t* block = mData;
    if (mData == nullptr || len == 0 || len != mDataCapacity) {
        block = len > 0 || mData == nullptr ? takeBlock(len, len) : nullptr;
        if (block == nullptr && len > 0) return mError = NO_MEMORY;
    }
    if (len > 0) memmove(block, buffer, len);
    if (mData != block) giveBlock(mData, mDataCapacity);
    mData = block;
    mDataCapacity = mDataSize = len;
    mDataPos = 0;
    releaseObjects();
    mAllowFds = true;
    return NO_ERROR;
}

status_t Parcel::appendFrom(const Parcel* parcel, size_t offset, size_t len) {
    if (len == 0) return NO_ERROR;
    if (len > kMaxSize || offset > parcel->mDataSize || len > parcel->mDataSize - offset) {
        return BAD_VALUE;
    }
    if (mDataSize + len > mDataCapacity || mDataPos + len > mDataCapacity) {
        const status_t status = growData(len);
        if (status != NO_ERROR) return status;
    }
    const size_t target = mDataPos;
    // A parcel may append a part of itself.
    memmove(mData + target, parcel->mData + offset, len);
    mDataPos += len;
    mDataSize += len;
    if (parcel->mObjectsSize == 0) return NO_ERROR;
    ObjectTable objects(mObjects, mObjectsSize, mObjectsCapacity);
    const status_t status =
            objects.putRange(parcel->mObjects, parcel->mObjectsSize, offset, len, target);
    // From a position beyond the size, what was written may lie beyond the new size too.
    objects.truncate(mDataSize);
    return status;
}

int Parcel::compareData(const Parcel& other) {
    if (dataSize() != other.dataSize()) return dataSize() < other.dataSize() ? -1 : 1;
    // A position beyond the end counts as size, but there are no bytes to compare.
    const size_t common = std::min(mDataSize, other.mDataSize);
    const int order = common > 0 ? memcmp(mData, other.mData, common) : 0;
    if (order != 0 || mDataSize == other.mDataSize) return order;
    return mDataSize < other.mDataSize ? -1 : 1;
}

// Counts len bytes at the position as written.
status_t Parcel::finishWrite(size_t len) {
    mDataPos += len;
    mDataSize = std::max(mDataSize, mDataPos);
    return NO_ERROR;
}

// Makes room for len bytes at the position.
status_t Parcel::growData(size_t len) {
    if (len > kMaxSize) return BAD_VALUE;
    const uint64_t wanted = (uint64_t{mDataSize} + len) * 3 / 2;
    if (wanted > kMaxSize) return BAD_VALUE;
    if (wanted <= mDataSize) return NO_MEMORY;
    size_t capacity = std::max<size_t>(wanted, kSmallestBlock);
    // A position that continueWrite() keeps may lie beyond what the size asks for.
    if (mData != nullptr && capacity > mDataCapacity) capacity = std::max(capacity, mDataPos + len);
    const status_t status = continueWrite(capacity);
    if (status != NO_ERROR) return status;
    return mDataPos + len > mDataCapacity ? continueWrite(mDataPos + len) : NO_ERROR;
}

// Sets the capacity to at least desired. Keeps what lies within the first desired bytes. The first
// allocation resets the position; afterwards a position is clamped only where nothing is allocated.
status_t Parcel::continueWrite(size_t desired) {
    if (desired > kMaxSize) return BAD_VALUE;
    if (mObjectsSize > 0 && desired < mDataSize) {
        ObjectTable(mObjects, mObjectsSize, mObjectsCapacity).truncate(desired);
    }
    if (mData != nullptr && desired <= mDataCapacity) {
        mDataSize = std::min(mDataSize, desired);
        mDataPos = std::min(mDataPos, desired);
        return NO_ERROR;
    }
    uint8_t* block = takeBlock(desired, mDataCapacity);
    if (block == nullptr) return mError = NO_MEMORY;
    if (mData == nullptr) {
        mDataSize = mDataPos = 0;
    } else {
        memcpy(block, mData, mDataCapacity);
        giveBlock(mData, mDataCapacity);
    }
    mData = block;
    mDataCapacity = desired;
    return NO_ERROR;
}

size_t Parcel::getGlobalAllocSize() {
    return parcel::bytesInUse();
}

size_t Parcel::getGlobalAllocCount() {
    return parcel::blocksInUse();
}

}  // namespace android
