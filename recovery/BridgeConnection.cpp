#include "recovery/BridgeConnection.h"

#include <binder/IServiceManager.h>
#include <tarn/ITarnService.h>
#include <unistd.h>

namespace android {

namespace {

bool isAlive(const sp<IBinder>& service) {
    return service != nullptr && service->pingBinder() != DEAD_OBJECT;
}

}  // namespace

BridgeConnection::BridgeConnection(const sp<TarnClient>& client) : mClient(client) {}

int BridgeConnection::renew() {
    sp<IBinder> service;
    int number = kAway;
    {
        AutoMutex guard(mLock);
        service = mService;
        number = mNumber;
    }
    if (isAlive(service)) return number;
    {
        AutoMutex guard(mLock);
        if (mBusy) return kBusy;
        mBusy = true;
    }
    service = registerClient();
    AutoMutex guard(mLock);
    mBusy = false;
    mService = service;
    return service != nullptr ? ++mNumber : kAway;
}

/** The service that the client is registered with; null without one. */
sp<IBinder> BridgeConnection::registerClient() const {
    // Not by the client's connect(), which waits for a service, and first asks the one that it
    // knows, of whose death it may not have been told yet.
    const sp<IBinder> binder = defaultServiceManager()->checkService(String16("tarn.service"));
    if (binder == nullptr) return nullptr;
    interface_cast<ITarnService>(binder)->connect(getpid(), mClient);
    // What connect() returns is no sign of success.
    return isAlive(binder) ? binder : nullptr;
}

}  // namespace android
