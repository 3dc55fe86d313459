#pragma once

#include <tarn/DeathNotifier.h>
#include <tarn/ITarnClient.h>
#include <tarn/ITarnService.h>
#include <utils/Mutex.h>

namespace android {

// The process's reference to "tarn.service"; gServiceLock guards it.
extern sp<ITarnService> gTarnService;
extern Mutex gServiceLock;

/** The process's one death recipient, made when the service is first found. */
extern sp<DeathNotifier> gDeathNotifier;

/** As getTarnService(), but a reference of the caller's own, which no death takes away. */
sp<ITarnService> holdTarnService(const ITarnClient* client);

}  // namespace android
