#pragma once

#include <android/hidl/base/1.0/IBase.h>
#include <binder/Binder.h>
#include <binder/Parcel.h>

namespace android::hidl::base::V1_0 {

/** The stub of every interface: answers IBase's own methods and keeps the object alive. */
struct BnHwBase : public ::android::BBinder {
    const String16& getInterfaceDescriptor() const override { return mDescriptor; }
    bool checkSubclass(const void* subclassId) const override;

    /** The object that answers. */
    sp<IBase> getImpl() const { return mImpl; }

    /** What checkSubclass() knows every stub by. */
    static const void* subclassId();

  protected:
    /** descriptor is the interface's; other messages are refused. */
    BnHwBase(const sp<IBase>& impl, const char* descriptor);
    ~BnHwBase() override;

    status_t onTransact(uint32_t code, const Parcel& data, Parcel* reply, uint32_t flags = 0) final;

    /**
     * Answers the interface's own methods. data follows its token, reply is empty and never
     * null.
     * @return an error to be sent instead of reply, UNKNOWN_TRANSACTION for an unknown code.
     */
    virtual status_t onHidlTransact(uint32_t code, const Parcel& data, Parcel* reply) = 0;

  private:
    status_t onBaseTransact(uint32_t code, Parcel* reply);

    const sp<IBase> mImpl;
    const String16 mDescriptor;
};

}  // namespace android::hidl::base::V1_0
