#include <android/hidl/base/1.0/BnHwBase.h>
#include <hidl/HidlBinderSupport.h>

#include "BaseCodes.h"
#include "StubTable.h"
#include "host/HwBinder.h"

namespace android::hidl::base::V1_0 {

using ::android::hardware::finishReply;
using ::android::hardware::hidl_string;
using ::android::hardware::hidl_vec;
using ::android::hardware::Return;
using ::android::hardware::Status;
using ::android::hardware::writeToParcel;

BnHwBase::BnHwBase(const sp<IBase>& impl, const char* descriptor)
    : mImpl(impl), mDescriptor(descriptor) {}

BnHwBase::~BnHwBase() {
    ::android::hardware::details::forgetStub(mImpl.get(), this);
}

bool BnHwBase::checkSubclass(const void* id) const {
    return id == subclassId() || id == ::android::host::hwObjectId();
}

const void* BnHwBase::subclassId() {
    static const char id = 0;
    return &id;
}

status_t BnHwBase::onTransact(uint32_t code, const Parcel& data, Parcel* reply, uint32_t flags) {
    Parcel unwanted;
    if (reply == nullptr) reply = &unwanted;
    switch (code) {
        case PING:
        case INTERFACE_CHAIN:
        case INTERFACE_DESCRIPTOR:
        case DEBUG_INFO:
            if (!data.enforceInterface(String16(IBase::descriptor))) return BAD_TYPE;
            return onBaseTransact(code, reply);
        default:
            if (code > LAST_CALL_TRANSACTION) return BBinder::onTransact(code, data, reply, flags);
            if (!data.enforceInterface(mDescriptor)) return BAD_TYPE;
            return onHidlTransact(code, data, reply);
    }
}

status_t BnHwBase::onBaseTransact(uint32_t code, Parcel* reply) {
    status_t written = writeToParcel(Status::ok(), reply);
    const auto note = [&written](status_t status) {
        if (written == OK) written = status;
    };
    Return<void> result;
    switch (code) {
        case PING:
            result = mImpl->ping();
            break;
        case INTERFACE_CHAIN:
            result = mImpl->interfaceChain([&](const hidl_vec<hidl_string>& descriptors) {
                note(reply->writeInt32(static_cast<int32_t>(descriptors.size())));
                for (const hidl_string& name : descriptors) note(writeToParcel(name, reply));
            });
            break;
        case INTERFACE_DESCRIPTOR:
            result = mImpl->interfaceDescriptor(
                    [&](const hidl_string& name) { note(writeToParcel(name, reply)); });
            break;
        default:
            result = mImpl->getDebugInfo([&](const IBase::DebugInfo& info) {
                note(reply->writeInt32(info.pid));
                note(reply->writeUint64(info.ptr));
                note(reply->writeInt32(static_cast<int32_t>(info.arch)));
            });
    }
    return finishReply(result, written, reply);
}

}  // namespace android::hidl::base::V1_0
