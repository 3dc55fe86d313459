#pragma once

#include <cstdint>

namespace android {

/** An input source of the panel; the values are the service's. */
enum _TarnEnumInputSourceId_ : int32_t {};

}  // namespace android
