#include <tarn/ITarnClient.h>

#include <cstdint>
#include <memory>

namespace android {

namespace {

// The buffer that came for the notify() that runs on this thread, until it is taken.
thread_local const void* tHandedOver = nullptr;

}  // namespace

const String16 ITarnClient::descriptor("android.ITarnClient");
sp<ITarnClient> ITarnClient::default_impl;
Mutex BnTarnClient::mNotifyLock;

ITarnClient::ITarnClient() = default;
ITarnClient::~ITarnClient() = default;

const String16& ITarnClient::getInterfaceDescriptor() const {
    return descriptor;
}

sp<ITarnClient> ITarnClient::asInterface(const sp<IBinder>& binder) {
    if (binder == nullptr) return nullptr;
    const sp<IInterface> local = binder->queryLocalInterface(descriptor);
    if (local != nullptr) return static_cast<ITarnClient*>(local.get());
    return new BpTarnClient(binder);
}

bool ITarnClient::setDefaultImpl(const sp<ITarnClient>& impl) {
    if (impl == nullptr) return false;
    default_impl = impl;
    return true;
}

sp<ITarnClient> ITarnClient::getDefaultImpl() {
    return default_impl;
}

bool BnTarnClient::takeBuffer(const void* data) {
    if (data == nullptr || data != tHandedOver) return false;
    tHandedOver = nullptr;
    return true;
}

status_t BnTarnClient::onTransact(uint32_t code, const Parcel& data, Parcel* reply,
                                  uint32_t flags) {
    AutoMutex guard(mNotifyLock);
    if (code != NOTIFY) return BBinder::onTransact(code, data, reply, flags);
    if (!data.checkInterface(this)) return PERMISSION_DENIED;

    int32_t msgType = 0;
    status_t status = data.readInt32(&msgType);
    if (status != OK) return status;

    const size_t size = data.dataAvail();
    std::unique_ptr<uint8_t[]> buffer(new uint8_t[size]);
    status = data.read(buffer.get(), size);
    if (status != OK) return status;

    tHandedOver = buffer.get();
    notify(static_cast<unsigned int>(msgType), buffer.release(), static_cast<unsigned int>(size),
           nullptr);
    tHandedOver = nullptr;
    return OK;
}

BpTarnClient::BpTarnClient(const sp<IBinder>& remote) : BpInterface<ITarnClient>(remote) {}

void BpTarnClient::notify(unsigned int msgType, void* data, unsigned int size, void*) {
    Parcel request;
    request.writeInterfaceToken(ITarnClient::descriptor);
    request.writeInt32(static_cast<int32_t>(msgType));
    if (data != nullptr && size != 0) request.write(data, size);
    Parcel reply;
    remote()->transact(NOTIFY, request, &reply, IBinder::FLAG_ONEWAY);
}

}  // namespace android
