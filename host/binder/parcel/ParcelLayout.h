#pragma once

#include <cstddef>
#include <cstdint>

namespace android::parcel {

// No length, size or position goes beyond what an int32 length word can say.
inline constexpr size_t kMaxSize = INT32_MAX;

// Every write is padded to this.
inline constexpr size_t padded(size_t length) {
    return (length + 3) & ~size_t{3};
}

// Opens an interface token: 'SYST', the system partition's mark.
inline constexpr int32_t kTokenMark = 0x53595354;

// Bit of the strict mode policy that a token always carries.
inline constexpr int32_t kStrictModePenaltyGather = static_cast<int32_t>(0x80000000u);

}  // namespace android::parcel
