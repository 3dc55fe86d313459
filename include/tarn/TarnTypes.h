#pragma once

#include <cstdint>

namespace android {

/** An input source of the panel; values are service-defined. */
enum _TarnEnumInputSourceId_ : int32_t {};

}  // namespace android
