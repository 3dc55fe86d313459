#include <hidl/HidlBinderSupport.h>
#include <hidl/HidlTransportSupport.h>

#include "host/HwBinder.h"

namespace android::hardware {

void configureRpcThreadpool(size_t maxThreads, bool callerWillJoin) {
    if (maxThreads == 0) details::hidlFatal("configureRpcThreadpool needs at least one thread");
    host::setHwPoolMaxThreads(callerWillJoin ? maxThreads - 1 : maxThreads);
}

void joinRpcThreadpool() {
    host::joinHwPool();
}

void details::startRpcThreadpool() {
    host::startHwPool();
}

}  // namespace android::hardware
