#pragma once

#include <tarn/ITarnClient.h>
#include <tarn/ITarnService.h>
#include <utils/Mutex.h>

namespace android {

// The process's reference to "tarn.service"; gServiceLock guards it.
extern sp<ITarnService> gTarnService;
extern Mutex gServiceLock;

/** As getTarnService(), but a reference of the caller's own, which no death takes away. */
sp<ITarnService> holdTarnService(const ITarnClient* client);

}  // namespace android
