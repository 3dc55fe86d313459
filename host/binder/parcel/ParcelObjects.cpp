#define LOG_TAG "Parcel"

// Binders within a parcel.

#include <binder/BpBinder.h>
#include <binder/Parcel.h>
#include <binder/ProcessState.h>
#include <linux/android/binder.h>
#include <log/log.h>

#include <cstring>

#include "FlatBinderObject.h"
#include "LogLimit.h"
#include "ParcelObjectTable.h"

namespace android {

using parcel::ObjectTable;

namespace {

static_assert(sizeof(flat_binder_object) == parcel::kObjectSize);

// The stability words of a null binder and of one from the system partition.
constexpr int32_t kUndeclaredStability = 0;
constexpr int32_t kSystemStability = 0x0c;

// The scheduling that the platform asks for by default: nice value 19 at the least.
constexpr uint32_t kDefaultSchedulingBits = 19;

flat_binder_object flatten(const sp<IBinder>& binder) {
    flat_binder_object flat{};
    flat.type = kTypeLocal;
    flat.flags = kDefaultSchedulingBits;
    if (binder == nullptr) return flat;
    if (BpBinder* proxy = binder->remoteBinder(); proxy != nullptr) {
        flat.type = kTypeRemote;
        flat.reference = static_cast<uint32_t>(proxy->handle());
        return flat;
    }
    flat.flags |= kFlagAcceptsDescriptors;
    flat.reference = reinterpret_cast<uintptr_t>(binder->getWeakRefs());
    flat.cookie = reinterpret_cast<uintptr_t>(binder.get());
    return flat;
}

// The binder that a flat object names; null if there is none.
sp<IBinder> unflatten(const flat_binder_object& flat) {
    if (flat.type == kTypeRemote) {
        return ProcessState::self()->getStrongProxyForHandle(static_cast<int32_t>(flat.reference));
    }
    return reinterpret_cast<IBinder*>(static_cast<uintptr_t>(flat.cookie));
}

}  // namespace

status_t Parcel::writeObject(const flat_binder_object& val, bool nullMetaData) {
    if (val.type == kTypeDescriptor) return mAllowFds ? INVALID_OPERATION : FDS_NOT_ALLOWED;
    if (val.type != kTypeLocal && val.type != kTypeRemote) return BAD_TYPE;

    if (mDataPos + sizeof(val) > mDataCapacity) {
        const status_t status = growData(sizeof(val));
        if (status != NO_ERROR) return status;
    }
    const bool present = nullMetaData || val.reference != 0;
    const sp<IBinder> binder = present ? unflatten(val) : nullptr;
    if (binder != nullptr) {
        const status_t status =
                ObjectTable(mObjects, mObjectsSize, mObjectsCapacity).put(mDataPos, binder.get());
        if (status != NO_ERROR) return status;
    }
    memcpy(mData + mDataPos, &val, sizeof(val));
    return finishWrite(sizeof(val));
}

const flat_binder_object* Parcel::readObject(bool nullMetaData) const {
    const size_t start = mDataPos;
    if (start + sizeof(flat_binder_object) > mDataSize) return nullptr;
    const void* bytes = mData + start;
    mDataPos += sizeof(flat_binder_object);

    flat_binder_object flat;
    memcpy(&flat, bytes, sizeof(flat));
    const bool null = !nullMetaData && flat.cookie == 0 && flat.reference == 0;
    if (!null && parcel::findObject(mObjects, mObjectsSize, start) == nullptr) {
        if (parcel::mayLog()) {
            ALOGW("Attempt to read object from Parcel %p at offset %zu that is not in the object "
                  "list",
                  this, start);
        }
        return nullptr;
    }
    return static_cast<const flat_binder_object*>(bytes);
}

status_t Parcel::flattenBinder(const sp<IBinder>& binder) {
    const flat_binder_object flat = flatten(binder);
    const status_t status = writeObject(flat, false);
    return status == NO_ERROR ? finishFlattenBinder(binder, flat) : status;
}

status_t Parcel::finishFlattenBinder(const sp<IBinder>& binder, const flat_binder_object&) {
    return writeInt32(binder != nullptr ? kSystemStability : kUndeclaredStability);
}

status_t Parcel::unflattenBinder(sp<IBinder>* out) const {
    const size_t start = mDataPos;
    const flat_binder_object* flat = readObject(false);
    if (flat == nullptr) return BAD_TYPE;
    uint32_t type;
    memcpy(&type, flat, sizeof(type));
    if (type != kTypeLocal && type != kTypeRemote) return BAD_TYPE;
    return finishUnflattenBinder(parcel::findObject(mObjects, mObjectsSize, start), out);
}

status_t Parcel::finishUnflattenBinder(const sp<IBinder>& binder, sp<IBinder>* out) const {
    int32_t stability;
    const status_t status = readInt32(&stability);
    if (status == NO_ERROR) *out = binder;
    return status;
}

status_t Parcel::writeStrongBinder(const sp<IBinder>& val) {
    return flattenBinder(val);
}

status_t Parcel::readNullableStrongBinder(sp<IBinder>* val) const {
    return unflattenBinder(val);
}

status_t Parcel::readStrongBinder(sp<IBinder>* val) const {
    const status_t status = readNullableStrongBinder(val);
    return status == NO_ERROR && *val == nullptr ? UNEXPECTED_NULL : status;
}

sp<IBinder> Parcel::readStrongBinder() const {
    sp<IBinder> binder;
    readNullableStrongBinder(&binder);
    return binder;
}

size_t Parcel::objectsCount() const {
    return mObjectsSize;
}

uintptr_t Parcel::ipcData() const {
    return reinterpret_cast<uintptr_t>(mData);
}

size_t Parcel::ipcDataSize() const {
    return dataSize();
}

uintptr_t Parcel::ipcObjects() const {
    return reinterpret_cast<uintptr_t>(mObjects);
}

size_t Parcel::ipcObjectsCount() const {
    return mObjectsSize;
}

}  // namespace android
