#include <android/hidl/manager/1.2/IServiceManager.h>
#include <hidl/ServiceManagement.h>

#include "tests/support/Withdraw.h"

namespace tarn::test {

using ::android::sp;
using ::vendor::zunt::hwtarn::V1_0::IHwTarn;

void withdrawDefault(const sp<IHwTarn>& service) {
    const auto manager = ::android::hardware::defaultServiceManager1_2();
    if (manager != nullptr) manager->tryUnregister(IHwTarn::descriptor, "default", service).isOk();
}

}  // namespace tarn::test
