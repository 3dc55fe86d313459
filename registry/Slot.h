#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tarn::registry {

/** The slot of a virtual method: C++ member pointers of the ABIs in use hold its table offset. */
template <typename MemberFunction>
size_t slotOf(MemberFunction method) {
    uintptr_t word = 0;
    static_assert(sizeof(method) >= sizeof(word));
    memcpy(&word, &method, sizeof(word));
    return (word & ~static_cast<uintptr_t>(1)) / sizeof(void*);
}

}  // namespace tarn::registry
