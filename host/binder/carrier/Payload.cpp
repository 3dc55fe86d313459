#include "Payload.h"

#include <algorithm>

#include "host/binder/parcel/ParcelObjectTable.h"

namespace android::host {

namespace {

// An object and its stability word.
constexpr size_t kWholeObjectSize = parcel::kObjectSize + sizeof(int32_t);

// True if each object lies within the bytes and after the one before.
bool objectsFit(const Payload& payload) {
    size_t free = 0;
    for (const Payload::Object& object : payload.objects) {
        if (object.offset < free || object.offset > payload.bytes.size() ||
            payload.bytes.size() - object.offset < kWholeObjectSize || object.binder == nullptr) {
            return false;
        }
        free = object.offset + kWholeObjectSize;
    }
    return true;
}

}  // namespace

Payload takeApart(uintptr_t data, size_t size, uintptr_t objects, size_t objectCount) {
    Payload payload;
    const uint8_t* bytes = reinterpret_cast<const uint8_t*>(data);
    payload.bytes.assign(bytes, bytes + size);
    const auto* table = reinterpret_cast<const binder_size_t*>(objects);
    parcel::forEachObject(table, objectCount, [&payload](size_t offset, IBinder* binder) {
        payload.objects.push_back({offset, binder});
        std::fill_n(payload.bytes.begin() + static_cast<ptrdiff_t>(offset), parcel::kObjectSize,
                    uint8_t{0});
    });
    return payload;
}

status_t assemble(const Payload& payload, Parcel* out) {
    if (!objectsFit(payload)) return BAD_VALUE;
    out->freeData();
    status_t status = out->setData(payload.bytes.data(), payload.bytes.size());
    for (const Payload::Object& object : payload.objects) {
        if (status != NO_ERROR) return status;
        out->setDataPosition(object.offset);
        status = out->writeStrongBinder(object.binder);
    }
    out->setDataPosition(0);
    return status;
}

}  // namespace android::host
