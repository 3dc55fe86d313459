#pragma once

#include <android/hidl/base/1.0/BnHwBase.h>
#include <android/hidl/base/1.0/IBase.h>
#include <binder/Binder.h>
#include <binder/IBinder.h>
#include <binder/Parcel.h>
#include <hidl/HidlSupport.h>
#include <hidl/Status.h>
#include <utils/String16.h>

#include <cstdint>
#include <mutex>
#include <string>
#include <vector>

namespace android::hardware {

// How HIDL's types travel in a parcel. What is read refers to the parcel's own bytes. A length that
// is negative or goes beyond the parcel gives an error and leaves the target alone.
//   string  int32 length, the bytes, a NUL
//   vec     int32 length, the bytes
//   status  int32 exception code; unless 0, a string with the message
status_t writeToParcel(const hidl_string& text, Parcel* parcel);
status_t readFromParcel(hidl_string* text, const Parcel& parcel);
status_t writeToParcel(const hidl_vec<uint8_t>& bytes, Parcel* parcel);
status_t readFromParcel(hidl_vec<uint8_t>* bytes, const Parcel& parcel);
/** A transport error has no form of its own: it is returned, to be the transaction's result. */
status_t writeToParcel(const Status& status, Parcel* parcel);
status_t readFromParcel(Status* status, const Parcel& parcel);

/**
 * Ends a stub's answer: result is what the object returned, reply holds the results (written tells
 * how that went). A failure of the object replaces them.
 */
status_t finishReply(const details::return_status& result, status_t written, Parcel* reply);

/** One call through a proxy: its arguments, the transaction, the status of the answer. */
class ProxyCall {
  public:
    /** descriptor names the interface that the stub insists on. */
    explicit ProxyCall(const char* descriptor) {
        note(mArguments.writeInterfaceToken(String16(descriptor)));
    }

    Parcel* arguments() { return &mArguments; }
    /** Takes the result of writing one argument; the first error fails the call. */
    void note(status_t written) {
        if (mWritten == OK) mWritten = written;
    }

    /** Sends the call and waits. Afterwards, if it succeeded, reply() stands at the results. */
    Status transact(IBinder* remote, uint32_t code);
    const Parcel& reply() const { return mReply; }

  private:
    Parcel mArguments;
    Parcel mReply;
    status_t mWritten = OK;
};

namespace details {

using ::android::hidl::base::V1_0::BnHwBase;
using ::android::hidl::base::V1_0::IBase;

/** The stub of a local object: the same one as long as anybody holds it, else what create makes. */
sp<IBinder> getOrCreateStub(IBase* object, sp<BnHwBase> (*create)(IBase*));

/** Whether object's interface chain names descriptor; the error of a call that failed. */
Return<bool> canCastInterface(IBase* object, const char* descriptor, bool emitError);

/** Starts serving calls from other processes, unless a thread that joins does so alone. */
void startRpcThreadpool();

/** Publishes an object's binder as "descriptor/name" and starts serving other processes. */
status_t registerService(const char* descriptor, const std::string& name,
                         const sp<IBinder>& binder);

/** The binder published as "descriptor/name", null if there is none now. */
sp<IBinder> findService(const char* descriptor, const std::string& name);

// IBase's methods, called through a binder.
Return<void> remoteInterfaceChain(IBinder* remote, const IBase::interfaceChain_cb& callback);
Return<void> remoteInterfaceDescriptor(IBinder* remote,
                                       const IBase::interfaceDescriptor_cb& callback);
Return<void> remotePing(IBinder* remote);
Return<void> remoteGetDebugInfo(IBinder* remote, const IBase::getDebugInfo_cb& callback);

/** The death notifications that were asked for through one proxy. */
class DeathLinks {
  public:
    bool link(IBinder* remote, const sp<hidl_death_recipient>& recipient, uint64_t cookie,
              const wp<IBase>& who);
    bool unlink(IBinder* remote, const sp<hidl_death_recipient>& recipient);
    void clear();

  private:
    class Link;

    std::mutex mLock;
    std::vector<sp<IBinder::DeathRecipient>> mLinks;
};

}  // namespace details

/** The half that all proxies share: IBase's own methods, and the binder. */
template <typename IType>
class BpInterface : public IType, public BpRefBase {
  public:
    bool isRemote() const override { return true; }
    IBinder* _hidl_remote() const override { return remote(); }

    Return<void> interfaceChain(typename IType::interfaceChain_cb _hidl_cb) override {
        return details::remoteInterfaceChain(remote(), _hidl_cb);
    }
    Return<void> interfaceDescriptor(typename IType::interfaceDescriptor_cb _hidl_cb) override {
        return details::remoteInterfaceDescriptor(remote(), _hidl_cb);
    }
    Return<bool> linkToDeath(const sp<hidl_death_recipient>& recipient, uint64_t cookie) override {
        return mDeathLinks.link(remote(), recipient, cookie, this);
    }
    Return<void> ping() override { return details::remotePing(remote()); }
    Return<void> getDebugInfo(typename IType::getDebugInfo_cb _hidl_cb) override {
        return details::remoteGetDebugInfo(remote(), _hidl_cb);
    }
    Return<bool> unlinkToDeath(const sp<hidl_death_recipient>& recipient) override {
        return mDeathLinks.unlink(remote(), recipient);
    }

  protected:
    explicit BpInterface(const sp<IBinder>& remote) : BpRefBase(remote) {}

    // A link refers weakly to this proxy, and a proxy lives as long as its weak references.
    void onLastStrongRef(const void* id) override {
        mDeathLinks.clear();
        BpRefBase::onLastStrongRef(id);
    }

  private:
    details::DeathLinks mDeathLinks;
};

/** What stands for object in a parcel: a proxy's own binder, else the stub. Null for null. */
template <typename IType, typename StubType>
sp<IBinder> toBinder(const sp<IType>& object) {
    using details::IBase;
    if (object == nullptr) return nullptr;
    if (IBinder* remote = object->_hidl_remote()) return remote;
    return details::getOrCreateStub(object.get(), [](IBase* base) -> sp<details::BnHwBase> {
        return new StubType(static_cast<IType*>(base));
    });
}

/** The object behind a local stub, or a new proxy. Null for null and for a local binder of another
 * kind. */
template <typename IType, typename ProxyType, typename StubType>
sp<IType> fromBinder(const sp<IBinder>& binder) {
    if (binder == nullptr) return nullptr;
    BBinder* local = binder->localBinder();
    if (local == nullptr) return new ProxyType(binder);
    if (!local->checkSubclass(StubType::subclassId())) return nullptr;
    return static_cast<StubType*>(local)->getImpl();
}

/** parent as an IType, null if it is none, or the error met while asking a remote one. */
template <typename IType, typename ProxyType>
Return<sp<IType>> castInterface(const sp<details::IBase>& parent, bool emitError) {
    if (parent == nullptr) return nullptr;
    const Return<bool> castable =
            details::canCastInterface(parent.get(), IType::descriptor, emitError);
    if (!castable.isOk()) return details::statusOf(castable);
    if (!castable) return nullptr;
    if (IBinder* remote = parent->_hidl_remote()) return new ProxyType(remote);
    return static_cast<IType*>(parent.get());
}

}  // namespace android::hardware
