#pragma once

#include <binder/IBinder.h>

#include <cstdint>

namespace android::hidl::base::V1_0 {

/** Transaction codes of IBase's own methods, beyond those that an interface can have. */
enum BaseCode : uint32_t {
    PING = B_PACK_CHARS(0x0f, 'P', 'N', 'G'),
    INTERFACE_CHAIN = B_PACK_CHARS(0x0f, 'C', 'H', 'N'),
    INTERFACE_DESCRIPTOR = B_PACK_CHARS(0x0f, 'D', 'S', 'C'),
    DEBUG_INFO = B_PACK_CHARS(0x0f, 'R', 'E', 'F'),
};

}  // namespace android::hidl::base::V1_0
