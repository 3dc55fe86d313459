#define LOG_TAG "IPCThreadState"

// A thread's calls to remote objects, and its serving of those that come in.

#include <binder/BpBinder.h>
#include <binder/IPCThreadState.h>
#include <log/log.h>
#include <pthread.h>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <variant>

#include "HwPool.h"
#include "ServingGate.h"
#include "UnservedWarning.h"
#include "host/binder/carrier/Carrier.h"

namespace android {

namespace {

// The call that this thread serves.
thread_local host::IncomingCall* tIncoming = nullptr;

// Where threads that joined the pool wait for stopProcess() while there is no carrier. Never
// destroyed: they may still wait when static objects are destroyed.
struct IdlePool {
    std::mutex lock;
    std::condition_variable stopped;
    bool stop = false;

    static IdlePool& get() {
        static IdlePool& pool = *new IdlePool;
        return pool;
    }

    void wait() {
        std::unique_lock<std::mutex> guard(lock);
        stopped.wait(guard, [this] { return stop; });
    }

    void release() {
        std::lock_guard<std::mutex> guard(lock);
        stop = true;
        stopped.notify_all();
    }
};

}  // namespace

int IPCThreadState::setupPolling(int* fd) {
    ALOGE("Binder commands cannot be polled for on this host");
    *fd = -1;
    return INVALID_OPERATION;
}

status_t IPCThreadState::handlePolledCommands() {
    return INVALID_OPERATION;
}

// Commands are never buffered.
void IPCThreadState::flushCommands() {}

status_t IPCThreadState::transact(int32_t handle, uint32_t code, const Parcel& data, Parcel* reply,
                                  uint32_t flags) {
    const status_t error = data.errorCheck();
    if (error != NO_ERROR) {
        if (reply != nullptr) reply->setError(error);
        return mLastError = error;
    }
    host::Carrier* const carrier = host::carrier();
    if (carrier == nullptr) return mLastError = DEAD_OBJECT;

    host::Payload request = host::takeApart(data.ipcData(), data.mDataSize, data.ipcObjects(),
                                            data.ipcObjectsCount());
    if ((flags & IBinder::FLAG_ONEWAY) != 0) {
        return mLastError = carrier->transact(handle, code, flags, std::move(request), nullptr);
    }
    if (mCallRestriction != ProcessState::CallRestriction::NONE) {
        ALOGE("Process makes a blocking call (code %u), which it must not", code);
        LOG_ALWAYS_FATAL_IF(mCallRestriction == ProcessState::CallRestriction::FATAL_IF_NOT_ONEWAY,
                            "blocking calls are restricted");
    }
    host::Payload answer;
    mLastError = carrier->transact(handle, code, flags, std::move(request), &answer);
    if (mLastError == NO_ERROR && reply != nullptr) mLastError = host::assemble(answer, reply);
    return mLastError;
}

void IPCThreadState::joinThreadPool(bool /*isMain*/) {
    if (host::carrier() == nullptr) {
        IdlePool::get().wait();
        return;
    }
    host::ServingGate::closeAtExit();
    if (host::threadDomain() == host::Domain::BINDER) host::noteServing();
    while (getAndExecuteCommand() == NO_ERROR) {
    }
}

void IPCThreadState::stopProcess(bool /*immediate*/) {
    IdlePool::get().release();
    if (host::Carrier* carrier = host::carrier(); carrier != nullptr) carrier->stop();
}

void IPCThreadState::blockUntilThreadAvailable() {
    pthread_mutex_lock(&mProcess->mThreadCountLock);
    while (mProcess->mExecutingThreadsCount >= mProcess->mMaxThreads) {
        pthread_cond_wait(&mProcess->mThreadCountDecrement, &mProcess->mThreadCountLock);
    }
    pthread_mutex_unlock(&mProcess->mThreadCountLock);
}

// Waits for work of the thread's domain and does it. Starts another thread of the pool if none is
// left to wait for more.
status_t IPCThreadState::getAndExecuteCommand() {
    host::Carrier* const carrier = host::carrier();
    if (carrier == nullptr) return NO_INIT;
    const host::Domain domain = host::threadDomain();
    std::optional<host::PoolWork> work = carrier->receive(domain);
    if (!work.has_value()) return NO_INIT;

    if (domain == host::Domain::HWBINDER) {
        host::beginHwWork();
    } else {
        pthread_mutex_lock(&mProcess->mThreadCountLock);
        mProcess->mExecutingThreadsCount++;
        const size_t threads = static_cast<size_t>(
                __atomic_load_n(&mProcess->mThreadPoolSeq, __ATOMIC_ACQUIRE) - 1);
        if (mProcess->mExecutingThreadsCount >= threads && threads < mProcess->mMaxThreads) {
            mProcess->spawnPooledThread(false);
        }
        pthread_mutex_unlock(&mProcess->mThreadCountLock);
    }

    {
        const host::ServingGate gate;
        if (const auto* task = std::get_if<host::Task>(&*work); task != nullptr) {
            (*task)();
        } else {
            // Another one, if what it served has joined the pool.
            host::IncomingCall* const outer = tIncoming;
            tIncoming = std::get<std::unique_ptr<host::IncomingCall>>(*work).get();
            executeCommand(static_cast<int32_t>(tIncoming->code));
            tIncoming = outer;
        }
        work.reset();
    }

    if (domain == host::Domain::HWBINDER) {
        host::endHwWork();
        return NO_ERROR;
    }
    pthread_mutex_lock(&mProcess->mThreadCountLock);
    mProcess->mExecutingThreadsCount--;
    pthread_cond_broadcast(&mProcess->mThreadCountDecrement);
    pthread_mutex_unlock(&mProcess->mThreadCountLock);
    return NO_ERROR;
}

// Serves the incoming call under its caller's identity. The thread may be serving another call
// already, whose identity it has again afterwards.
status_t IPCThreadState::executeCommand(int32_t command) {
    const host::IncomingCall& call = *tIncoming;
    const int64_t workSource = clearCallingWorkSource();
    clearPropagateWorkSource();
    const int32_t strictModePolicy = mStrictModePolicy;
    const int32_t lastFlags = mLastTransactionBinderFlags;
    const pid_t callingPid = mCallingPid;
    const char* const callingSid = mCallingSid;
    const uid_t callingUid = mCallingUid;
    const void* const servingStackPointer = mServingStackPointer;
    mCallingPid = call.callingPid;
    mCallingSid = nullptr;
    mCallingUid = call.callingUid;
    mLastTransactionBinderFlags = static_cast<int32_t>(call.flags);
    mServingStackPointer = __builtin_frame_address(0);

    Parcel request;
    Parcel reply;
    status_t status = host::assemble(call.request, &request);
    if (status == NO_ERROR) {
        status = call.target != nullptr ? call.target->transact(static_cast<uint32_t>(command),
                                                                request, &reply, call.flags)
                                        : UNKNOWN_TRANSACTION;
    }
    if (status != NO_ERROR) reply.setError(status);

    mServingStackPointer = servingStackPointer;
    mCallingPid = callingPid;
    mCallingSid = callingSid;
    mCallingUid = callingUid;
    mLastTransactionBinderFlags = lastFlags;
    mStrictModePolicy = strictModePolicy;
    restoreCallingWorkSource(workSource);
    return (call.flags & IBinder::FLAG_ONEWAY) != 0 ? status : sendReply(reply, call.flags);
}

status_t IPCThreadState::sendReply(const Parcel& reply, uint32_t /*flags*/) {
    const status_t status = reply.errorCheck();
    if (status != NO_ERROR) {
        tIncoming->answer(status, host::Payload());
    } else {
        tIncoming->answer(NO_ERROR, host::takeApart(reply.ipcData(), reply.mDataSize,
                                                    reply.ipcObjects(), reply.ipcObjectsCount()));
    }
    return status;
}

// A remote object is kept for as long as there is a proxy, referenced strongly or weakly.

void IPCThreadState::incStrongHandle(int32_t /*handle*/, BpBinder* /*proxy*/) {}

void IPCThreadState::decStrongHandle(int32_t /*handle*/) {}

status_t IPCThreadState::attemptIncStrongHandle(int32_t /*handle*/) {
    return NO_ERROR;
}

void IPCThreadState::incWeakHandle(int32_t handle, BpBinder* /*proxy*/) {
    if (host::Carrier* carrier = host::carrier(); carrier != nullptr) carrier->acquire(handle);
}

void IPCThreadState::decWeakHandle(int32_t handle) {
    if (host::Carrier* carrier = host::carrier(); carrier != nullptr) carrier->release(handle);
}

void IPCThreadState::expungeHandle(int32_t handle, IBinder* binder) {
    ProcessState::self()->expungeHandle(handle, binder);
}

status_t IPCThreadState::requestDeathNotification(int32_t handle, BpBinder* proxy) {
    host::Carrier* const carrier = host::carrier();
    if (carrier == nullptr) return DEAD_OBJECT;
    carrier->watchDeath(handle, wp<BpBinder>(proxy));
    return NO_ERROR;
}

status_t IPCThreadState::clearDeathNotification(int32_t handle, BpBinder* /*proxy*/) {
    host::Carrier* const carrier = host::carrier();
    if (carrier == nullptr) return DEAD_OBJECT;
    carrier->unwatchDeath(handle);
    return NO_ERROR;
}

void IPCThreadState::setTheContextObject(sp<BBinder> /*obj*/) {
    ALOGE("No process can become the service manager on this host");
}

}  // namespace android
