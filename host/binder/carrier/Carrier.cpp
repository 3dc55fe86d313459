#include "Carrier.h"

#include <atomic>

#include "host/binder/parcel/ParcelObjectTable.h"

namespace android::host {

namespace {

std::atomic<Carrier*> gCarrier{nullptr};

// An object and its stability word.
constexpr size_t kWholeObjectSize = parcel::kObjectSize + sizeof(int32_t);

// True if each object lies within the bytes and behind the one before.
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

Carrier* carrier() {
    return gCarrier.load(std::memory_order_acquire);
}

void setCarrier(Carrier* newCarrier) {
    gCarrier.store(newCarrier, std::memory_order_release);
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
