#pragma once

#include <android/hidl/base/1.0/BnHwBase.h>
#include <android/hidl/base/1.0/IBase.h>

namespace android::hardware::details {

/** Called by a stub that goes away. */
void forgetStub(::android::hidl::base::V1_0::IBase* object,
                const ::android::hidl::base::V1_0::BnHwBase* stub);

}  // namespace android::hardware::details
