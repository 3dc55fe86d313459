#include <binder/IServiceManager.h>
#include <tarn/TarnService.h>

#define TARN_LOG_TAG "Zunt@TarnService"
#include "log/Log.h"

namespace android {

ITarnPlatform* sTarnPlatform = nullptr;

void TarnService::instantiate() {
    const sp<TarnService> service = new TarnService;
    sTarnPlatform = service.get();
    defaultServiceManager()->addService(String16("tarn.service"), service, false,
                                        IServiceManager::DUMP_FLAG_PRIORITY_DEFAULT);
    TLOGD("TarnService instantiate");
}

void TarnService::deinstantiate() {
    sTarnPlatform = nullptr;
    TLOGD("TarnService deinstantiate");
}

TarnService::TarnService() = default;

TarnService::~TarnService() {
    TLOGD("TarnService destroyed");
    TarnService::exitTv();
    if (sTarnPlatform == this) sTarnPlatform = nullptr;
}

int TarnService::connect(int pid, const sp<ITarnClient>& client) {
    AutoMutex guard(mClientLock);
    TLOGD("entern connect, client pid = %d", pid);
    // Each CONNECT of a remote client comes with a proxy of its own; the binder is the same.
    const sp<IBinder> binder = IInterface::asBinder(client);
    if (mBinders.indexOf(binder.get()) < 0) {
        mBinders.add(binder.get());
        mClients.add(client);
    }
    mClientPids.add(pid);
    TLOGD("mClients.size = %d ", static_cast<int>(mClients.size()));
    return -1;
}

status_t TarnService::invoke(const Parcel&, Parcel*) {
    return -1;
}

int TarnService::initTv() const {
    return -1;
}

int TarnService::exitTv() const {
    return -1;
}

int TarnService::notify(unsigned int msgType, void* data, unsigned int size, void* ext) const {
    AutoMutex guard(mLock);
    SortedVector<sp<ITarnClient>> clients;
    {
        AutoMutex clientGuard(mClientLock);
        clients = mClients;
    }
    for (size_t i = 0; i < clients.size(); i++) {
        const sp<ITarnClient>& client = clients[i];
        if (client == nullptr) continue;
        TLOGD("Notify<Client:%p Type:%d>", client.get(), static_cast<int>(msgType));
        client->notify(msgType, data, size, ext);
    }
    return 0;
}

}  // namespace android
