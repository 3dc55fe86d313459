#include <hidl/HidlBinderSupport.h>
#include <vendor/zunt/hwtarn/1.0/BnHwHwTarnCallback.h>
#include <vendor/zunt/hwtarn/1.0/BpHwHwTarnCallback.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarnCallback.h>

#include "TransactionCodes.h"

namespace vendor::zunt::hwtarn::V1_0 {

using ::android::IBinder;
using ::android::OK;
using ::android::Parcel;
using ::android::sp;
using ::android::status_t;
using ::android::UNKNOWN_TRANSACTION;
using ::android::hardware::castInterface;
using ::android::hardware::finishReply;
using ::android::hardware::hidl_string;
using ::android::hardware::hidl_vec;
using ::android::hardware::ProxyCall;
using ::android::hardware::readFromParcel;
using ::android::hardware::Return;
using ::android::hardware::Status;
using ::android::hardware::Void;
using ::android::hardware::writeToParcel;
using ::android::hidl::base::V1_0::IBase;

namespace {

template <typename Content>
Return<void> sendEvent(IBinder* remote, uint32_t code, uint32_t msgType, int32_t arg,
                       const Content& content) {
    ProxyCall call(IHwTarnCallback::descriptor);
    call.note(call.arguments()->writeUint32(msgType));
    call.note(call.arguments()->writeInt32(arg));
    call.note(writeToParcel(content, call.arguments()));
    return call.transact(remote, code);
}

template <typename Content>
status_t readEvent(const Parcel& data, uint32_t* msgType, int32_t* arg, Content* content) {
    status_t read = data.readUint32(msgType);
    if (read == OK) read = data.readInt32(arg);
    if (read == OK) read = readFromParcel(content, data);
    return read;
}

}  // namespace

const char* IHwTarnCallback::descriptor = "vendor.zunt.hwtarn@1.0::IHwTarnCallback";

Return<void> IHwTarnCallback::interfaceChain(interfaceChain_cb _hidl_cb) {
    _hidl_cb({IHwTarnCallback::descriptor, IBase::descriptor});
    return Void();
}

Return<void> IHwTarnCallback::interfaceDescriptor(interfaceDescriptor_cb _hidl_cb) {
    _hidl_cb(IHwTarnCallback::descriptor);
    return Void();
}

Return<sp<IHwTarnCallback>> IHwTarnCallback::castFrom(const sp<IHwTarnCallback>& parent,
                                                      bool /*emitError*/) {
    return parent;
}

Return<sp<IHwTarnCallback>> IHwTarnCallback::castFrom(const sp<IBase>& parent, bool emitError) {
    return castInterface<IHwTarnCallback, BpHwHwTarnCallback>(parent, emitError);
}

BpHwHwTarnCallback::BpHwHwTarnCallback(const sp<IBinder>& _hidl_impl)
    : BpInterface<IHwTarnCallback>(_hidl_impl) {}

Return<void> BpHwHwTarnCallback::hwNotify(uint32_t msgType, int32_t arg, const hidl_string& text) {
    return sendEvent(remote(), HW_NOTIFY, msgType, arg, text);
}

Return<void> BpHwHwTarnCallback::hwNotify_vec(uint32_t msgType, int32_t arg,
                                              const hidl_vec<uint8_t>& data) {
    return sendEvent(remote(), HW_NOTIFY_VEC, msgType, arg, data);
}

BnHwHwTarnCallback::BnHwHwTarnCallback(const sp<IHwTarnCallback>& _hidl_impl)
    : BnHwBase(_hidl_impl, IHwTarnCallback::descriptor), mImpl(_hidl_impl) {}

bool BnHwHwTarnCallback::checkSubclass(const void* id) const {
    return id == subclassId() || BnHwBase::checkSubclass(id);
}

const void* BnHwHwTarnCallback::subclassId() {
    static const char id = 0;
    return &id;
}

status_t BnHwHwTarnCallback::onHidlTransact(uint32_t code, const Parcel& data, Parcel* reply) {
    switch (code) {
        case HW_NOTIFY:
            return onHwNotify(data, reply);
        case HW_NOTIFY_VEC:
            return onHwNotifyVec(data, reply);
        default:
            return UNKNOWN_TRANSACTION;
    }
}

status_t BnHwHwTarnCallback::onHwNotify(const Parcel& data, Parcel* reply) {
    uint32_t msgType = 0;
    int32_t arg = 0;
    hidl_string text;
    const status_t read = readEvent(data, &msgType, &arg, &text);
    if (read != OK) return read;
    const Return<void> result = mImpl->hwNotify(msgType, arg, text);
    return finishReply(result, writeToParcel(Status::ok(), reply), reply);
}

status_t BnHwHwTarnCallback::onHwNotifyVec(const Parcel& data, Parcel* reply) {
    uint32_t msgType = 0;
    int32_t arg = 0;
    hidl_vec<uint8_t> bytes;
    const status_t read = readEvent(data, &msgType, &arg, &bytes);
    if (read != OK) return read;
    const Return<void> result = mImpl->hwNotify_vec(msgType, arg, bytes);
    return finishReply(result, writeToParcel(Status::ok(), reply), reply);
}

}  // namespace vendor::zunt::hwtarn::V1_0
