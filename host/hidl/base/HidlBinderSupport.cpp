#define LOG_TAG "HidlSupport"

#include <binder/IServiceManager.h>
#include <hidl/HidlBinderSupport.h>
#include <log/log.h>

#include <algorithm>
#include <climits>
#include <utility>

#include "BaseCodes.h"

namespace android::hardware {
namespace {

using ::android::hidl::base::V1_0::BaseCode;
using ::android::hidl::base::V1_0::IBase;

status_t writeBytes(const void* data, size_t counted, size_t stored, Parcel* parcel) {
    if (counted > INT32_MAX) return BAD_VALUE;
    const status_t written = parcel->writeInt32(static_cast<int32_t>(counted));
    if (written != OK || stored == 0) return written;
    return parcel->write(data, stored);
}

status_t readLength(const Parcel& parcel, size_t* length) {
    int32_t counted = 0;
    const status_t read = parcel.readInt32(&counted);
    if (read != OK) return read;
    if (counted < 0) return BAD_VALUE;
    *length = static_cast<size_t>(counted);
    return OK;
}

}  // namespace

status_t writeToParcel(const hidl_string& text, Parcel* parcel) {
    return writeBytes(text.c_str(), text.size(), text.size() + 1, parcel);
}

status_t readFromParcel(hidl_string* text, const Parcel& parcel) {
    size_t length = 0;
    const status_t read = readLength(parcel, &length);
    if (read != OK) return read;
    const auto* data = static_cast<const char*>(parcel.readInplace(length + 1));
    if (data == nullptr) return NOT_ENOUGH_DATA;
    if (data[length] != '\0') return BAD_VALUE;
    text->setToExternal(data, length);
    return OK;
}

status_t writeToParcel(const hidl_vec<uint8_t>& bytes, Parcel* parcel) {
    return writeBytes(bytes.data(), bytes.size(), bytes.size(), parcel);
}

status_t readFromParcel(hidl_vec<uint8_t>* bytes, const Parcel& parcel) {
    size_t length = 0;
    const status_t read = readLength(parcel, &length);
    if (read != OK) return read;
    if (length == 0) {
        bytes->setToExternal(nullptr, 0);
        return OK;
    }
    const void* data = parcel.readInplace(length);
    if (data == nullptr) return NOT_ENOUGH_DATA;
    bytes->setToExternal(static_cast<uint8_t*>(const_cast<void*>(data)), length);
    return OK;
}

status_t writeToParcel(const Status& status, Parcel* parcel) {
    if (status.transactionError() != OK) return status.transactionError();
    const status_t written = parcel->writeInt32(status.exceptionCode());
    if (written != OK || status.isOk()) return written;
    return writeToParcel(hidl_string(status.exceptionMessage()), parcel);
}

status_t readFromParcel(Status* status, const Parcel& parcel) {
    int32_t exceptionCode = Status::EX_NONE;
    status_t read = parcel.readInt32(&exceptionCode);
    if (read != OK) return read;
    hidl_string message;
    if (exceptionCode != Status::EX_NONE) {
        read = readFromParcel(&message, parcel);
        if (read != OK) return read;
    }
    status->setException(exceptionCode, message.c_str());
    return OK;
}

status_t finishReply(const details::return_status& result, status_t written, Parcel* reply) {
    if (result.isOk()) return written;
    reply->setDataSize(0);
    return writeToParcel(details::statusOf(result), reply);
}

Status ProxyCall::transact(IBinder* remote, uint32_t code) {
    if (mWritten != OK) return Status::fromStatusT(mWritten);
    status_t result = remote->transact(code, mArguments, &mReply);
    if (result != OK) return Status::fromStatusT(result);
    Status status;
    result = readFromParcel(&status, mReply);
    return result == OK ? status : Status::fromStatusT(result);
}

namespace details {

Return<bool> canCastInterface(IBase* object, const char* descriptor, bool emitError) {
    bool named = false;
    const Return<void> asked =
            object->interfaceChain([&](const hidl_vec<hidl_string>& descriptors) {
                named = descriptors.contains(descriptor);
            });
    if (!asked.isOk()) return statusOf(asked);
    if (!named && emitError) ALOGE("Not a %s", descriptor);
    return named;
}

status_t registerService(const char* descriptor, const std::string& name,
                         const sp<IBinder>& binder) {
    const sp<IServiceManager> services = defaultServiceManager();
    if (services == nullptr) return NO_INIT;
    startRpcThreadpool();
    return services->addService(String16((std::string(descriptor) + "/" + name).c_str()), binder);
}

sp<IBinder> findService(const char* descriptor, const std::string& name) {
    const sp<IServiceManager> services = defaultServiceManager();
    if (services == nullptr) return nullptr;
    return services->checkService(String16((std::string(descriptor) + "/" + name).c_str()));
}

Return<void> remoteInterfaceChain(IBinder* remote, const IBase::interfaceChain_cb& callback) {
    ProxyCall call(IBase::descriptor);
    const Status status = call.transact(remote, BaseCode::INTERFACE_CHAIN);
    if (!status.isOk()) return status;
    int32_t count = 0;
    if (call.reply().readInt32(&count) != OK || count < 0) return Status::fromStatusT(BAD_VALUE);
    // No room is made for count in advance: it is the other side's word.
    std::vector<hidl_string> descriptors;
    for (int32_t i = 0; i < count; i++) {
        hidl_string name;
        const status_t read = readFromParcel(&name, call.reply());
        if (read != OK) return Status::fromStatusT(read);
        descriptors.push_back(std::move(name));
    }
    callback(descriptors);
    return Void();
}

Return<void> remoteInterfaceDescriptor(IBinder* remote,
                                       const IBase::interfaceDescriptor_cb& callback) {
    ProxyCall call(IBase::descriptor);
    const Status status = call.transact(remote, BaseCode::INTERFACE_DESCRIPTOR);
    if (!status.isOk()) return status;
    hidl_string name;
    const status_t read = readFromParcel(&name, call.reply());
    if (read != OK) return Status::fromStatusT(read);
    callback(name);
    return Void();
}

Return<void> remotePing(IBinder* remote) {
    return ProxyCall(IBase::descriptor).transact(remote, BaseCode::PING);
}

Return<void> remoteGetDebugInfo(IBinder* remote, const IBase::getDebugInfo_cb& callback) {
    ProxyCall call(IBase::descriptor);
    const Status status = call.transact(remote, BaseCode::DEBUG_INFO);
    if (!status.isOk()) return status;
    IBase::DebugInfo info;
    int32_t arch = 0;
    status_t read = call.reply().readInt32(&info.pid);
    if (read == OK) read = call.reply().readUint64(&info.ptr);
    if (read == OK) read = call.reply().readInt32(&arch);
    if (read != OK) return Status::fromStatusT(read);
    info.arch = static_cast<IBase::DebugInfo::Architecture>(arch);
    callback(info);
    return Void();
}

/** One link; tells its recipient in HIDL's terms. */
class DeathLinks::Link : public IBinder::DeathRecipient {
  public:
    Link(const sp<hidl_death_recipient>& recipient, uint64_t cookie, const wp<IBase>& who)
        : mRecipient(recipient), mCookie(cookie), mWho(who) {}

    bool isFor(const sp<hidl_death_recipient>& recipient) const { return mRecipient == recipient; }

    void binderDied(const wp<IBinder>& /*who*/) override {
        const sp<hidl_death_recipient> recipient = mRecipient.promote();
        if (recipient != nullptr) recipient->serviceDied(mCookie, mWho);
    }

  private:
    const wp<hidl_death_recipient> mRecipient;
    const uint64_t mCookie;
    const wp<IBase> mWho;
};

bool DeathLinks::link(IBinder* remote, const sp<hidl_death_recipient>& recipient, uint64_t cookie,
                      const wp<IBase>& who) {
    if (recipient == nullptr) return false;
    // It is told on a thread of this process.
    startRpcThreadpool();
    const sp<Link> link = new Link(recipient, cookie, who);
    {
        const std::lock_guard<std::mutex> guard(mLock);
        mLinks.push_back(link);
    }
    if (remote->linkToDeath(link) == OK) return true;
    const std::lock_guard<std::mutex> guard(mLock);
    mLinks.erase(std::remove(mLinks.begin(), mLinks.end(), link), mLinks.end());
    return false;
}

bool DeathLinks::unlink(IBinder* remote, const sp<hidl_death_recipient>& recipient) {
    if (recipient == nullptr) return false;
    sp<IBinder::DeathRecipient> link;
    {
        const std::lock_guard<std::mutex> guard(mLock);
        // The latest of several links of one recipient goes first.
        const auto found = std::find_if(mLinks.rbegin(), mLinks.rend(), [&](const auto& candidate) {
            return static_cast<Link*>(candidate.get())->isFor(recipient);
        });
        if (found == mLinks.rend()) return false;
        link = *found;
        mLinks.erase(std::next(found).base());
    }
    return remote->unlinkToDeath(link) == OK;
}

void DeathLinks::clear() {
    const std::lock_guard<std::mutex> guard(mLock);
    mLinks.clear();
}

}  // namespace details
}  // namespace android::hardware
