#include <tarn/ITarnService.h>

#define TARN_LOG_TAG "Zunt@ITarnService"
#include "log/Log.h"

namespace android {

const String16 ITarnService::descriptor("android.ITarnService");
sp<ITarnService> ITarnService::default_impl;
Mutex BnTarnService::m_binderLock;

ITarnService::ITarnService() = default;
ITarnService::~ITarnService() = default;

const String16& ITarnService::getInterfaceDescriptor() const {
    return descriptor;
}

sp<ITarnService> ITarnService::asInterface(const sp<IBinder>& binder) {
    if (binder == nullptr) return nullptr;
    const sp<IInterface> local = binder->queryLocalInterface(descriptor);
    if (local != nullptr) return static_cast<ITarnService*>(local.get());
    return new BpTarnService(binder);
}

bool ITarnService::setDefaultImpl(const sp<ITarnService>& impl) {
    if (impl == nullptr) return false;
    default_impl = impl;
    return true;
}

sp<ITarnService> ITarnService::getDefaultImpl() {
    return default_impl;
}

status_t BnTarnService::onTransact(uint32_t code, const Parcel& data, Parcel* reply,
                                   uint32_t flags) {
    switch (code) {
        case CONNECT: {
            TLOGI("CONNECT!");
            if (!data.checkInterface(this)) return PERMISSION_DENIED;
            int32_t pid = 0;
            sp<IBinder> client;
            status_t status = data.readInt32(&pid);
            if (status == OK) status = data.readNullableStrongBinder(&client);
            if (status != OK) return status;
            const int result = connect(pid, interface_cast<ITarnClient>(client));
            if (reply != nullptr) reply->writeInt32(result);
            return OK;
        }
        case INVOKE:
            if (!data.checkInterface(this)) return PERMISSION_DENIED;
            TLOGI("INVOKE!");
            return invoke(data, reply);
        default:
            return BBinder::onTransact(code, data, reply, flags);
    }
}

BpTarnService::BpTarnService(const sp<IBinder>& remote) : BpInterface<ITarnService>(remote) {}

int BpTarnService::connect(int pid, const sp<ITarnClient>& client) {
    // An error by its level only: tools on the device look for the line there.
    TLOGE("connect !");
    Parcel request;
    request.writeInterfaceToken(ITarnService::descriptor);
    request.writeInt32(pid);
    request.writeStrongBinder(IInterface::asBinder(client));
    Parcel reply;
    const status_t status = remote()->transact(CONNECT, request, &reply, 0);
    TLOGI("connect pid:%d, transact return %d!", pid, status);
    return reply.readInt32();
}

status_t BpTarnService::invoke(const Parcel& data, Parcel* reply) {
    TLOGI("invoke !");
    return remote()->transact(INVOKE, data, reply, 0);
}

}  // namespace android
