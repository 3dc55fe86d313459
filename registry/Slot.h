#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tarn::registry {

/**
 * The slot of a virtual method. The first word of its member pointer is its offset in the table:
 * plus one in most C++ ABIs, as it is in the ARM one, where that mark stands in the second word.
 */
template <typename MemberFunction>
size_t slotOf(MemberFunction method) {
    uintptr_t word = 0;
    static_assert(sizeof(method) >= sizeof(word));
    memcpy(&word, &method, sizeof(word));
    return (word & ~static_cast<uintptr_t>(1)) / sizeof(void*);
}

}  // namespace tarn::registry
