#pragma once

#include <binder/IBinder.h>
#include <binder/Parcel.h>

#include <cstdint>
#include <vector>

namespace android::host {

/** What a parcel holds, in the form in which it goes to another process. */
struct Payload {
    struct Object {
        size_t offset;
        sp<IBinder> binder;
    };

    std::vector<uint8_t> bytes;   // zero where an object lies
    std::vector<Object> objects;  // ordered by offset
};

/** The content of a parcel, given by its bytes and its table of objects. */
Payload takeApart(uintptr_t data, size_t size, uintptr_t objects, size_t objectCount);

/** Puts a parcel together from what came in; BAD_VALUE if an object does not fit in the bytes. */
status_t assemble(const Payload& payload, Parcel* out);

}  // namespace android::host
