#include <tarn/DeathNotifier.h>

#include "service/ServiceReference.h"

#define TARN_LOG_TAG "Zunt@TarnClient"
#include "log/Log.h"

namespace android {

void DeathNotifier::binderDied(const wp<IBinder>&) {
    TLOGW("Tarn service died!");
    AutoMutex guard(gServiceLock);
    gTarnService.clear();
}

}  // namespace android
