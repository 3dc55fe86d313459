#pragma once

#include <binder/IBinder.h>
#include <hidl/HidlBinderSupport.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarnCallback.h>

namespace vendor::zunt::hwtarn::V1_0 {

/** IHwTarnCallback in another process. */
struct BpHwHwTarnCallback : public ::android::hardware::BpInterface<IHwTarnCallback> {
    explicit BpHwHwTarnCallback(const ::android::sp<::android::IBinder>& _hidl_impl);

    ::android::hardware::Return<void> hwNotify(
            uint32_t msgType, int32_t arg, const ::android::hardware::hidl_string& text) override;
    ::android::hardware::Return<void> hwNotify_vec(
            uint32_t msgType, int32_t arg,
            const ::android::hardware::hidl_vec<uint8_t>& data) override;
};

}  // namespace vendor::zunt::hwtarn::V1_0
