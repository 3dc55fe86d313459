#pragma once

#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

namespace tarn::bench {

/** Answers a command with its own bytes: the code comes back as the status. */
class EchoService : public ::vendor::zunt::hwtarn::V1_0::IHwTarn {
  public:
    android::hardware::Return<void> hwRegisterCallback(
            const android::sp<::vendor::zunt::hwtarn::V1_0::IHwTarnCallback>&, int32_t) override {
        return android::hardware::Void();
    }
    android::hardware::Return<void> hwInvoke(const android::hardware::hidl_string& request,
                                             hwInvoke_cb _hidl_cb) override {
        _hidl_cb(request);
        return android::hardware::Void();
    }
    android::hardware::Return<void> hwPostEvent(int32_t,
                                                const android::hardware::hidl_string&) override {
        return android::hardware::Void();
    }
};

}  // namespace tarn::bench
