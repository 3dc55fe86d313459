#pragma once

#include <cstdint>

namespace vendor::zunt::hwtarn::V1_0 {

// Numbered in declaration order, as HIDL does.
enum HwTarnCode : uint32_t {
    HW_REGISTER_CALLBACK = 2,
    HW_INVOKE = 3,
    HW_POST_EVENT = 5,
};

enum HwTarnCallbackCode : uint32_t {
    HW_NOTIFY = 1,
    HW_NOTIFY_VEC = 2,
};

}  // namespace vendor::zunt::hwtarn::V1_0
