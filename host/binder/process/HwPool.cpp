#define LOG_TAG "HwBinder"

#include "HwPool.h"

#include <binder/IPCThreadState.h>
#include <log/log.h>
#include <pthread.h>
#include <unistd.h>

#include <mutex>
#include <string>
#include <system_error>
#include <thread>

#include "ServingGate.h"
#include "host/HwBinder.h"
#include "host/binder/dbus/SessionCarrier.h"

namespace android::host {

namespace {

thread_local Domain tDomain = Domain::BINDER;

// Never destroyed: its threads may run until the very end of the process.
struct HwPool {
    std::mutex lock;  // guards what follows
    size_t maxThreads = 1;
    size_t threads = 0;
    size_t working = 0;

    static HwPool& get() {
        static HwPool& pool = *new HwPool;
        return pool;
    }

    // With the lock held.
    void addThread() {
        const std::string name =
                "HwBinder:" + std::to_string(getpid()) + "_" + std::to_string(threads + 1);
        try {
            std::thread([name] {
                // The kernel cuts longer names.
                pthread_setname_np(pthread_self(), name.substr(0, 15).c_str());
                joinHwPool();
            }).detach();
            threads++;
        } catch (const std::system_error& error) {
            ALOGE("HIDL's pool cannot have another thread: %s", error.what());
        }
    }
};

}  // namespace

const void* hwObjectId() {
    static const char id = 0;
    return &id;
}

void setHwPoolMaxThreads(size_t maxThreads) {
    HwPool& pool = HwPool::get();
    std::lock_guard<std::mutex> guard(pool.lock);
    pool.maxThreads = maxThreads;
}

void startHwPool() {
    connectCarrier();
    // Without a carrier nothing ever comes in.
    if (carrier() == nullptr) return;
    HwPool& pool = HwPool::get();
    std::lock_guard<std::mutex> guard(pool.lock);
    if (pool.threads > 0 || pool.maxThreads == 0) return;
    ServingGate::closeAtExit();
    pool.addThread();
}

void joinHwPool() {
    const Domain before = tDomain;
    tDomain = Domain::HWBINDER;
    IPCThreadState::self()->joinThreadPool();
    tDomain = before;
}

Domain threadDomain() {
    return tDomain;
}

void beginHwWork() {
    HwPool& pool = HwPool::get();
    std::lock_guard<std::mutex> guard(pool.lock);
    pool.working++;
    const bool started = pool.threads > 0;
    if (started && pool.working >= pool.threads && pool.threads < pool.maxThreads) pool.addThread();
}

void endHwWork() {
    HwPool& pool = HwPool::get();
    std::lock_guard<std::mutex> guard(pool.lock);
    pool.working--;
}

}  // namespace android::host
