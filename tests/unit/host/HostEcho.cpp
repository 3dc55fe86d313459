#include "tests/unit/host/HostEcho.h"

namespace android {

DO_NOT_DIRECTLY_USE_ME_IMPLEMENT_META_INTERFACE(Echo, "tarn.test.IEcho")

std::atomic<int> Echo::sDestroyed{0};

}  // namespace android
