#pragma once

#include <cstdint>

namespace android {

/** How a binder lies among a parcel's bytes; laid out as the kernel's header has it. */
struct flat_binder_object {
    uint32_t type;
    uint32_t flags;
    uint64_t reference;  // a remote object's handle; null for no object
    uint64_t cookie;     // a local object's address
};

inline constexpr uint32_t packType(char a, char b, char c) {
    return static_cast<uint32_t>(a) << 24 | static_cast<uint32_t>(b) << 16 |
           static_cast<uint32_t>(c) << 8 | 0x85;
}

inline constexpr uint32_t kTypeLocal = packType('s', 'b', '*');
inline constexpr uint32_t kTypeRemote = packType('s', 'h', '*');
inline constexpr uint32_t kTypeDescriptor = packType('f', 'd', '*');

inline constexpr uint32_t kFlagAcceptsDescriptors = 0x100;

}  // namespace android
