#pragma once

#include <cstddef>
#include <cstdint>

namespace tarn::test {

/** More bytes than a process can have: a thread with such a stack can't be started. */
inline constexpr size_t kMoreThanMemory =
        static_cast<size_t>(sizeof(size_t) == 8 ? uint64_t{1} << 48 : uint64_t{0xf0000000});

}  // namespace tarn::test
