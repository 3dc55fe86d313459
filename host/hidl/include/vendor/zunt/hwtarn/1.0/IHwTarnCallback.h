#pragma once

#include <android/hidl/base/1.0/IBase.h>
#include <hidl/HidlSupport.h>
#include <hidl/Status.h>

#include <cstdint>

namespace vendor::zunt::hwtarn::V1_0 {

/** Receives the hardware service's events. */
struct IHwTarnCallback : public ::android::hidl::base::V1_0::IBase {
    static const char* descriptor;

    bool isRemote() const override { return false; }

    /** An event with a text. */
    virtual ::android::hardware::Return<void> hwNotify(
            uint32_t msgType, int32_t arg, const ::android::hardware::hidl_string& text) = 0;

    /** An event with bytes, possibly none. */
    virtual ::android::hardware::Return<void> hwNotify_vec(
            uint32_t msgType, int32_t arg, const ::android::hardware::hidl_vec<uint8_t>& data) = 0;

    ::android::hardware::Return<void> interfaceChain(interfaceChain_cb _hidl_cb) override;
    ::android::hardware::Return<void> interfaceDescriptor(interfaceDescriptor_cb _hidl_cb) override;

    static ::android::hardware::Return<::android::sp<IHwTarnCallback>> castFrom(
            const ::android::sp<IHwTarnCallback>& parent, bool emitError = false);
    static ::android::hardware::Return<::android::sp<IHwTarnCallback>> castFrom(
            const ::android::sp<::android::hidl::base::V1_0::IBase>& parent,
            bool emitError = false);
};

}  // namespace vendor::zunt::hwtarn::V1_0
