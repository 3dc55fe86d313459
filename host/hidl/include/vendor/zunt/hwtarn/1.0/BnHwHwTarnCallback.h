#pragma once

#include <android/hidl/base/1.0/BnHwBase.h>
#include <binder/Parcel.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarnCallback.h>

namespace vendor::zunt::hwtarn::V1_0 {

/** Answers other processes' calls of an IHwTarnCallback. */
struct BnHwHwTarnCallback : public ::android::hidl::base::V1_0::BnHwBase {
    explicit BnHwHwTarnCallback(const ::android::sp<IHwTarnCallback>& _hidl_impl);

    bool checkSubclass(const void* id) const override;
    ::android::sp<IHwTarnCallback> getImpl() const { return mImpl; }

    /** What checkSubclass() knows stubs of this interface by. */
    static const void* subclassId();

  protected:
    ::android::status_t onHidlTransact(uint32_t code, const ::android::Parcel& data,
                                       ::android::Parcel* reply) override;

  private:
    ::android::status_t onHwNotify(const ::android::Parcel& data, ::android::Parcel* reply);
    ::android::status_t onHwNotifyVec(const ::android::Parcel& data, ::android::Parcel* reply);

    const ::android::sp<IHwTarnCallback> mImpl;
};

}  // namespace vendor::zunt::hwtarn::V1_0
