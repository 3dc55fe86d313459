#pragma once

#include <binder/IBinder.h>
#include <hidl/HidlBinderSupport.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

namespace vendor::zunt::hwtarn::V1_0 {

/** IHwTarn in another process. */
struct BpHwHwTarn : public ::android::hardware::BpInterface<IHwTarn> {
    explicit BpHwHwTarn(const ::android::sp<::android::IBinder>& _hidl_impl);

    ::android::hardware::Return<void> hwRegisterCallback(
            const ::android::sp<IHwTarnCallback>& callback, int32_t pid) override;
    ::android::hardware::Return<void> hwInvoke(const ::android::hardware::hidl_string& request,
                                               hwInvoke_cb _hidl_cb) override;
    ::android::hardware::Return<void> hwPostEvent(
            int32_t what, const ::android::hardware::hidl_string& data) override;
};

}  // namespace vendor::zunt::hwtarn::V1_0
