#include <utils/String16.h>

#include "host/HostServiceManager.h"
#include "tests/support/Withdraw.h"

namespace tarn::test {

using ::android::sp;
using ::vendor::zunt::hwtarn::V1_0::IHwTarn;

void withdrawDefault(const sp<IHwTarn>& /*service*/) {
    ::android::host::removeService(::android::String16("vendor.zunt.hwtarn@1.0::IHwTarn/default"));
}

}  // namespace tarn::test
