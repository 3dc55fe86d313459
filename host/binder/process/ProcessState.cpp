#define LOG_TAG "ProcessState"

#include <binder/BpBinder.h>
#include <binder/IPCThreadState.h>
#include <binder/IServiceManager.h>
#include <binder/ProcessState.h>
#include <log/log.h>
#include <pthread.h>
#include <unistd.h>

#include <mutex>
#include <string>
#include <system_error>
#include <thread>

#include "ServingGate.h"
#include "UnservedWarning.h"
#include "host/binder/carrier/Carrier.h"
#include "host/binder/dbus/SessionCarrier.h"

namespace android {

namespace {

// What getDriverName() gives; a host has no driver.
constexpr char kDriverName[] = "host";

constexpr size_t kDefaultMaxThreads = 15;

// The carrier counts handles up from 1; the table must not grow for an invalid one.
constexpr int32_t kMaxHandle = 1 << 20;

// The kernel cuts longer names.
constexpr size_t kMaxThreadName = 15;

void nameThisThread(const std::string& name) {
    pthread_setname_np(pthread_self(), name.substr(0, kMaxThreadName).c_str());
}

std::mutex gInstanceLock;
// Never destroyed: pool threads may run until the very end of the process.
sp<ProcessState>& gInstance = *new sp<ProcessState>;

}  // namespace

sp<ProcessState> ProcessState::self() {
    host::connectCarrier();
    std::lock_guard<std::mutex> lock(gInstanceLock);
    if (gInstance == nullptr) gInstance = new ProcessState(kDriverName);
    return gInstance;
}

sp<ProcessState> ProcessState::selfOrNull() {
    std::lock_guard<std::mutex> lock(gInstanceLock);
    return gInstance;
}

sp<ProcessState> ProcessState::initWithDriver(const char* driver) {
    std::lock_guard<std::mutex> lock(gInstanceLock);
    LOG_ALWAYS_FATAL_IF(gInstance != nullptr && gInstance->getDriverName() != driver,
                        "ProcessState was already initialized with another driver than %s", driver);
    if (gInstance == nullptr) gInstance = new ProcessState(driver);
    return gInstance;
}

ProcessState::ProcessState(const char* driver)
    : mDriverName(driver),
      mDriverFD(-1),
      mVMStart(nullptr),
      mThreadCountLock(PTHREAD_MUTEX_INITIALIZER),
      mThreadCountDecrement(PTHREAD_COND_INITIALIZER),
      mExecutingThreadsCount(0),
      mMaxThreads(kDefaultMaxThreads),
      mStarvationStartTimeMs(0),
      mBinderContextCheckFunc(nullptr),
      mBinderContextUserData(nullptr),
      mThreadPoolStarted(false),
      mThreadPoolSeq(1),
      mCallRestriction(CallRestriction::NONE) {}

ProcessState::~ProcessState() = default;

String8 ProcessState::getDriverName() {
    return mDriverName;
}

sp<IBinder> ProcessState::getContextObject(const sp<IBinder>& /*caller*/) {
    return IInterface::asBinder(defaultServiceManager());
}

bool ProcessState::becomeContextManager(context_check_func /*checkFunc*/, void* /*userData*/) {
    ALOGE("No process can become the service manager on this host");
    return false;
}

ProcessState::handle_entry* ProcessState::lookupHandleLocked(int32_t handle) {
    if (handle < 0 || handle > kMaxHandle) return nullptr;
    const size_t index = static_cast<size_t>(handle);
    if (index >= mHandleToObject.size()) {
        const ssize_t result =
                mHandleToObject.insertAt(handle_entry{nullptr, nullptr}, mHandleToObject.size(),
                                         index + 1 - mHandleToObject.size());
        if (result < 0) return nullptr;
    }
    return &mHandleToObject.editItemAt(index);
}

sp<IBinder> ProcessState::getStrongProxyForHandle(int32_t handle) {
    AutoMutex lock(mLock);
    handle_entry* entry = lookupHandleLocked(handle);
    if (entry == nullptr) return nullptr;
    sp<IBinder> proxy;
    // A proxy that is being destroyed waits in expungeHandle() for this lock, so its reference
    // counts can still be read.
    if (entry->binder != nullptr && entry->refs->attemptIncWeak(this)) {
        proxy.force_set(entry->binder);
        entry->refs->decWeak(this);
        return proxy;
    }
    BpBinder* created = BpBinder::create(handle);
    entry->binder = created;
    entry->refs = created->getWeakRefs();
    proxy = created;
    return proxy;
}

void ProcessState::expungeHandle(int32_t handle, IBinder* binder) {
    AutoMutex lock(mLock);
    handle_entry* entry = lookupHandleLocked(handle);
    // The entry may belong to a newer proxy by now.
    if (entry != nullptr && entry->binder == binder) entry->binder = nullptr;
}

void ProcessState::startThreadPool() {
    if (__atomic_exchange_n(&mThreadPoolStarted, true, __ATOMIC_ACQ_REL)) return;
    host::ServingGate::closeAtExit();
    host::noteServing();
    spawnPooledThread(true);
}

void ProcessState::spawnPooledThread(bool isMain) {
    // Without a carrier nothing ever comes in.
    const bool started = __atomic_load_n(&mThreadPoolStarted, __ATOMIC_ACQUIRE);
    if (!started || host::carrier() == nullptr) return;
    const std::string name = makeBinderThreadName().string();
    try {
        std::thread([name, isMain] {
            nameThisThread(name);
            IPCThreadState::self()->joinThreadPool(isMain);
        }).detach();
    } catch (const std::system_error& error) {
        ALOGE("The pool cannot have another thread: %s", error.what());
        // Not counted, so that the next call that needs it tries again.
        __atomic_fetch_sub(&mThreadPoolSeq, 1, __ATOMIC_ACQ_REL);
        if (isMain) __atomic_store_n(&mThreadPoolStarted, false, __ATOMIC_RELEASE);
    }
}

String8 ProcessState::makeBinderThreadName() {
    const int32_t number = __atomic_fetch_add(&mThreadPoolSeq, 1, __ATOMIC_ACQ_REL);
    return String8::format("Binder:%d_%X", getpid(), static_cast<unsigned>(number));
}

status_t ProcessState::setThreadPoolMaxThreadCount(size_t maxThreads) {
    pthread_mutex_lock(&mThreadCountLock);
    mMaxThreads = maxThreads;
    pthread_mutex_unlock(&mThreadCountLock);
    return NO_ERROR;
}

void ProcessState::giveThreadPoolName() {
    nameThisThread(makeBinderThreadName().string());
}

ssize_t ProcessState::getKernelReferences(size_t /*count*/, uintptr_t* /*buf*/) {
    return 0;
}

ssize_t ProcessState::getStrongRefCountForNodeByHandle(int32_t /*handle*/) {
    return -1;
}

void ProcessState::setCallRestriction(CallRestriction restriction) {
    LOG_ALWAYS_FATAL_IF(IPCThreadState::selfOrNull() != nullptr,
                        "Call restrictions must be set before the first thread");
    mCallRestriction = restriction;
}

}  // namespace android
