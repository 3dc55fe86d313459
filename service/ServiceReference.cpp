#include "service/ServiceReference.h"

#include <binder/IServiceManager.h>
#include <tarn/DeathNotifier.h>
#include <tarn/TarnClient.h>
#include <unistd.h>

#define TARN_LOG_TAG "Zunt@TarnClient"
#include "log/Log.h"

namespace android {

sp<ITarnService> gTarnService;
Mutex gServiceLock;
sp<DeathNotifier> gDeathNotifier;

namespace {

constexpr useconds_t kPollIntervalUs = 500000;

/** False when the service has died meanwhile. One of this process cannot be linked to. */
bool linkToDeath(const sp<IBinder>& binder) {
    if (gDeathNotifier == nullptr) gDeathNotifier = new DeathNotifier;
    return binder->linkToDeath(gDeathNotifier, nullptr, 0) != DEAD_OBJECT;
}

/** Waits for a service that is alive; its death will be heard of. */
sp<IBinder> waitForPublishedService() {
    const sp<IServiceManager> manager = defaultServiceManager();
    for (;;) {
        const sp<IBinder> binder = manager->getService(String16("tarn.service"));
        if (binder != nullptr && linkToDeath(binder)) return binder;
        TarnLog(TARN_LOG_DEBUG, TARN_LOG_TAG, "getTarnService", __LINE__,
                "TarnService not published...");
        usleep(kPollIntervalUs);
    }
}

/** Fills gTarnService where it is empty. Call with gServiceLock held. */
void resolveLocked(const ITarnClient* client) {
    if (gTarnService != nullptr) return;

    gTarnService = interface_cast<ITarnService>(waitForPublishedService());
    // So that a client that only ever invokes is notified too.
    if (gTarnService != nullptr) gTarnService->connect(getpid(), const_cast<ITarnClient*>(client));
}

}  // namespace

const sp<ITarnService>& getTarnService(const ITarnClient* client) {
    AutoMutex guard(gServiceLock);
    resolveLocked(client);
    return gTarnService;
}

sp<ITarnService> holdTarnService(const ITarnClient* client) {
    AutoMutex guard(gServiceLock);
    resolveLocked(client);
    return gTarnService;
}

}  // namespace android
