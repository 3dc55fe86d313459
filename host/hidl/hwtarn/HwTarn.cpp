#include <hidl/HidlBinderSupport.h>
#include <vendor/zunt/hwtarn/1.0/BnHwHwTarn.h>
#include <vendor/zunt/hwtarn/1.0/BnHwHwTarnCallback.h>
#include <vendor/zunt/hwtarn/1.0/BpHwHwTarn.h>
#include <vendor/zunt/hwtarn/1.0/BpHwHwTarnCallback.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include "TransactionCodes.h"

namespace vendor::zunt::hwtarn::V1_0 {

using ::android::BAD_TYPE;
using ::android::IBinder;
using ::android::OK;
using ::android::Parcel;
using ::android::sp;
using ::android::status_t;
using ::android::UNKNOWN_TRANSACTION;
using ::android::hardware::castInterface;
using ::android::hardware::finishReply;
using ::android::hardware::fromBinder;
using ::android::hardware::hidl_string;
using ::android::hardware::ProxyCall;
using ::android::hardware::readFromParcel;
using ::android::hardware::Return;
using ::android::hardware::Status;
using ::android::hardware::toBinder;
using ::android::hardware::Void;
using ::android::hardware::writeToParcel;
using ::android::hidl::base::V1_0::IBase;

const char* IHwTarn::descriptor = "vendor.zunt.hwtarn@1.0::IHwTarn";

Return<void> IHwTarn::hwReserved1() {
    return Status::fromStatusT(UNKNOWN_TRANSACTION);
}

Return<void> IHwTarn::hwReserved4() {
    return Status::fromStatusT(UNKNOWN_TRANSACTION);
}

Return<void> IHwTarn::interfaceChain(interfaceChain_cb _hidl_cb) {
    _hidl_cb({IHwTarn::descriptor, IBase::descriptor});
    return Void();
}

Return<void> IHwTarn::interfaceDescriptor(interfaceDescriptor_cb _hidl_cb) {
    _hidl_cb(IHwTarn::descriptor);
    return Void();
}

Return<sp<IHwTarn>> IHwTarn::castFrom(const sp<IHwTarn>& parent, bool /*emitError*/) {
    return parent;
}

Return<sp<IHwTarn>> IHwTarn::castFrom(const sp<IBase>& parent, bool emitError) {
    return castInterface<IHwTarn, BpHwHwTarn>(parent, emitError);
}

sp<IHwTarn> IHwTarn::tryGetService(const std::string& serviceName, bool getStub) {
    if (getStub) return nullptr;
    return fromBinder<IHwTarn, BpHwHwTarn, BnHwHwTarn>(
            ::android::hardware::details::findService(descriptor, serviceName));
}

sp<IHwTarn> IHwTarn::tryGetService(const char serviceName[], bool getStub) {
    return tryGetService(std::string(serviceName != nullptr ? serviceName : ""), getStub);
}

sp<IHwTarn> IHwTarn::tryGetService(const hidl_string& serviceName, bool getStub) {
    return tryGetService(std::string(serviceName), getStub);
}

sp<IHwTarn> IHwTarn::tryGetService(bool getStub) {
    return tryGetService("default", getStub);
}

sp<IHwTarn> IHwTarn::getService(const std::string& serviceName, bool getStub) {
    return tryGetService(serviceName, getStub);
}

sp<IHwTarn> IHwTarn::getService(const char serviceName[], bool getStub) {
    return tryGetService(serviceName, getStub);
}

sp<IHwTarn> IHwTarn::getService(const hidl_string& serviceName, bool getStub) {
    return tryGetService(serviceName, getStub);
}

sp<IHwTarn> IHwTarn::getService(bool getStub) {
    return tryGetService(getStub);
}

status_t IHwTarn::registerAsService(const std::string& serviceName) {
    return ::android::hardware::details::registerService(descriptor, serviceName,
                                                         toBinder<IHwTarn, BnHwHwTarn>(this));
}

BpHwHwTarn::BpHwHwTarn(const sp<IBinder>& _hidl_impl) : BpInterface<IHwTarn>(_hidl_impl) {}

Return<void> BpHwHwTarn::hwRegisterCallback(const sp<IHwTarnCallback>& callback, int32_t pid) {
    // The service calls back on a thread of this process.
    ::android::hardware::details::startRpcThreadpool();
    ProxyCall call(IHwTarn::descriptor);
    call.note(call.arguments()->writeStrongBinder(
            toBinder<IHwTarnCallback, BnHwHwTarnCallback>(callback)));
    call.note(call.arguments()->writeInt32(pid));
    return call.transact(remote(), HW_REGISTER_CALLBACK);
}

Return<void> BpHwHwTarn::hwInvoke(const hidl_string& request, hwInvoke_cb _hidl_cb) {
    if (_hidl_cb == nullptr) {
        return Status::fromExceptionCode(Status::EX_ILLEGAL_ARGUMENT,
                                         "Null synchronous callback passed.");
    }
    ProxyCall call(IHwTarn::descriptor);
    call.note(writeToParcel(request, call.arguments()));
    const Status status = call.transact(remote(), HW_INVOKE);
    if (!status.isOk()) return status;
    hidl_string reply;
    const status_t read = readFromParcel(&reply, call.reply());
    if (read != OK) return Status::fromStatusT(read);
    _hidl_cb(reply);
    return Void();
}

Return<void> BpHwHwTarn::hwPostEvent(int32_t what, const hidl_string& data) {
    ProxyCall call(IHwTarn::descriptor);
    call.note(call.arguments()->writeInt32(what));
    call.note(writeToParcel(data, call.arguments()));
    return call.transact(remote(), HW_POST_EVENT);
}

BnHwHwTarn::BnHwHwTarn(const sp<IHwTarn>& _hidl_impl)
    : BnHwBase(_hidl_impl, IHwTarn::descriptor), mImpl(_hidl_impl) {}

bool BnHwHwTarn::checkSubclass(const void* id) const {
    return id == subclassId() || BnHwBase::checkSubclass(id);
}

const void* BnHwHwTarn::subclassId() {
    static const char id = 0;
    return &id;
}

status_t BnHwHwTarn::onHidlTransact(uint32_t code, const Parcel& data, Parcel* reply) {
    switch (code) {
        case HW_REGISTER_CALLBACK:
            return onHwRegisterCallback(data, reply);
        case HW_INVOKE:
            return onHwInvoke(data, reply);
        case HW_POST_EVENT:
            return onHwPostEvent(data, reply);
        default:
            return UNKNOWN_TRANSACTION;
    }
}

status_t BnHwHwTarn::onHwRegisterCallback(const Parcel& data, Parcel* reply) {
    sp<IBinder> binder;
    int32_t pid = 0;
    status_t read = data.readNullableStrongBinder(&binder);
    if (read == OK) read = data.readInt32(&pid);
    if (read != OK) return read;
    const sp<IHwTarnCallback> callback =
            fromBinder<IHwTarnCallback, BpHwHwTarnCallback, BnHwHwTarnCallback>(binder);
    if (binder != nullptr && callback == nullptr) return BAD_TYPE;
    const Return<void> result = mImpl->hwRegisterCallback(callback, pid);
    return finishReply(result, writeToParcel(Status::ok(), reply), reply);
}

status_t BnHwHwTarn::onHwInvoke(const Parcel& data, Parcel* reply) {
    hidl_string request;
    const status_t read = readFromParcel(&request, data);
    if (read != OK) return read;
    bool answered = false;
    status_t written = OK;
    const Return<void> result = mImpl->hwInvoke(request, [&](const hidl_string& answer) {
        if (answered) return;
        answered = true;
        written = writeToParcel(Status::ok(), reply);
        if (written == OK) written = writeToParcel(answer, reply);
    });
    if (result.isOk() && !answered) {
        return writeToParcel(Status::fromExceptionCode(Status::EX_ILLEGAL_STATE,
                                                       "hwInvoke: _hidl_cb was not called."),
                             reply);
    }
    return finishReply(result, written, reply);
}

status_t BnHwHwTarn::onHwPostEvent(const Parcel& data, Parcel* reply) {
    int32_t what = 0;
    hidl_string event;
    status_t read = data.readInt32(&what);
    if (read == OK) read = readFromParcel(&event, data);
    if (read != OK) return read;
    const Return<void> result = mImpl->hwPostEvent(what, event);
    return finishReply(result, writeToParcel(Status::ok(), reply), reply);
}

}  // namespace vendor::zunt::hwtarn::V1_0
