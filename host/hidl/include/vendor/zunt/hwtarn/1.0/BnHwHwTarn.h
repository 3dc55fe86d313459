#pragma once

#include <android/hidl/base/1.0/BnHwBase.h>
#include <binder/Parcel.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

namespace vendor::zunt::hwtarn::V1_0 {

/** Answers other processes' calls of an IHwTarn. */
struct BnHwHwTarn : public ::android::hidl::base::V1_0::BnHwBase {
    explicit BnHwHwTarn(const ::android::sp<IHwTarn>& _hidl_impl);

    bool checkSubclass(const void* id) const override;
    ::android::sp<IHwTarn> getImpl() const { return mImpl; }

    /** What checkSubclass() knows stubs of this interface by. */
    static const void* subclassId();

  protected:
    ::android::status_t onHidlTransact(uint32_t code, const ::android::Parcel& data,
                                       ::android::Parcel* reply) override;

  private:
    ::android::status_t onHwRegisterCallback(const ::android::Parcel& data,
                                             ::android::Parcel* reply);
    ::android::status_t onHwInvoke(const ::android::Parcel& data, ::android::Parcel* reply);
    ::android::status_t onHwPostEvent(const ::android::Parcel& data, ::android::Parcel* reply);

    const ::android::sp<IHwTarn> mImpl;
};

}  // namespace vendor::zunt::hwtarn::V1_0
