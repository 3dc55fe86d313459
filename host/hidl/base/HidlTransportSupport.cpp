#include <binder/IPCThreadState.h>
#include <binder/ProcessState.h>
#include <hidl/HidlBinderSupport.h>
#include <hidl/HidlTransportSupport.h>

#include <atomic>

namespace android::hardware {
namespace {

/** False once the caller of configureRpcThreadpool() is to be the only thread that serves. */
std::atomic<bool> gPoolWanted{true};

}  // namespace

void configureRpcThreadpool(size_t maxThreads, bool callerWillJoin) {
    if (maxThreads == 0) details::hidlFatal("configureRpcThreadpool needs at least one thread");
    const size_t pooled = callerWillJoin ? maxThreads - 1 : maxThreads;
    gPoolWanted = pooled > 0;
    ProcessState::self()->setThreadPoolMaxThreadCount(pooled);
}

void joinRpcThreadpool() {
    IPCThreadState::self()->joinThreadPool();
}

void details::startRpcThreadpool() {
    if (gPoolWanted) ProcessState::self()->startThreadPool();
}

}  // namespace android::hardware
