#pragma once

#include <binder/Parcel.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <map>

namespace tarn::bench {

/** A service in the process that answers at once, each command with a reply that is ready. */
class AnsweringService : public ::vendor::zunt::hwtarn::V1_0::IHwTarn {
  public:
    /** Sets the reply of a command, status first. Must not be called while commands come in. */
    void setReply(int command, const android::Parcel& reply);

    android::hardware::Return<void> hwRegisterCallback(
            const android::sp<::vendor::zunt::hwtarn::V1_0::IHwTarnCallback>& callback,
            int32_t pid) override;
    android::hardware::Return<void> hwInvoke(const android::hardware::hidl_string& request,
                                             hwInvoke_cb _hidl_cb) override;
    android::hardware::Return<void> hwPostEvent(
            int32_t what, const android::hardware::hidl_string& data) override;

    /** Raises an event of so many bytes. */
    void raiseEvent(size_t bytes);

  private:
    android::sp<::vendor::zunt::hwtarn::V1_0::IHwTarnCallback> mCallback;
    std::map<int, android::hardware::hidl_string> mReplies;
};

}  // namespace tarn::bench
