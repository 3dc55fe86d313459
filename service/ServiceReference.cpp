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

namespace {

constexpr useconds_t kPollIntervalUs = 500000;

sp<DeathNotifier> gDeathNotifier;

sp<IBinder> waitForPublishedService() {
    const sp<IServiceManager> manager = defaultServiceManager();
    for (;;) {
        const sp<IBinder> binder = manager->getService(String16("tarn.service"));
        if (binder != nullptr) return binder;
        TarnLog(TARN_LOG_DEBUG, TARN_LOG_TAG, "getTarnService", __LINE__,
                "TarnService not published...");
        usleep(kPollIntervalUs);
    }
}

/** Fills gTarnService where it is empty. Call with gServiceLock held. */
void resolveLocked(const ITarnClient* client) {
    if (gTarnService != nullptr) return;

    const sp<IBinder> binder = waitForPublishedService();
    if (gDeathNotifier == nullptr) gDeathNotifier = new DeathNotifier;
    binder->linkToDeath(gDeathNotifier, nullptr, 0);
    gTarnService = interface_cast<ITarnService>(binder);
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
