#define LOG_TAG "IPCThreadState"

// What a thread knows about the calls that it makes and serves.

#include <binder/IPCThreadState.h>
#include <log/log.h>
#include <pthread.h>
#include <unistd.h>

#include <atomic>

namespace android {

namespace {

std::atomic<bool> gShutDown{false};
std::atomic<bool> gBackgroundSchedulingDisabled{false};

thread_local IPCThreadState* tState = nullptr;

// An identity or a work source as the one number that callers keep and give back.
int64_t token(uint32_t high, uint32_t low) {
    return static_cast<int64_t>((uint64_t{high} << 32) | low);
}

uint32_t highWord(int64_t token) {
    return static_cast<uint32_t>(static_cast<uint64_t>(token) >> 32);
}

uint32_t lowWord(int64_t token) {
    return static_cast<uint32_t>(token);
}

}  // namespace

IPCThreadState* IPCThreadState::self() {
    if (tState != nullptr) return tState;
    if (gShutDown.load(std::memory_order_acquire)) return nullptr;
    // The key is there for its destructor, at the thread's end.
    static const pthread_key_t key = [] {
        pthread_key_t created;
        LOG_ALWAYS_FATAL_IF(pthread_key_create(&created, threadDestructor) != 0,
                            "no thread key left");
        return created;
    }();
    tState = new IPCThreadState;
    pthread_setspecific(key, tState);
    return tState;
}

IPCThreadState* IPCThreadState::selfOrNull() {
    return tState;
}

void IPCThreadState::threadDestructor(void* st) {
    tState = nullptr;
    delete static_cast<IPCThreadState*>(st);
}

void IPCThreadState::shutdown() {
    gShutDown.store(true, std::memory_order_release);
}

IPCThreadState::IPCThreadState()
    : mProcess(ProcessState::self()),
      mLastError(NO_ERROR),
      mServingStackPointer(nullptr),
      mWorkSource(kUnsetWorkSource),
      mPropagateWorkSource(false),
      mStrictModePolicy(0),
      mLastTransactionBinderFlags(0),
      mCallRestriction(mProcess->mCallRestriction) {
    clearCaller();
}

IPCThreadState::~IPCThreadState() = default;

sp<ProcessState> IPCThreadState::process() {
    return mProcess;
}

status_t IPCThreadState::clearLastError() {
    const status_t error = mLastError;
    mLastError = NO_ERROR;
    return error;
}

void IPCThreadState::clearCaller() {
    mCallingPid = getpid();
    mCallingSid = nullptr;
    mCallingUid = getuid();
}

pid_t IPCThreadState::getCallingPid() const {
    return mCallingPid;
}

const char* IPCThreadState::getCallingSid() const {
    return mCallingSid;
}

uid_t IPCThreadState::getCallingUid() const {
    return mCallingUid;
}

int64_t IPCThreadState::clearCallingIdentity() {
    const int64_t identity = token(mCallingUid, static_cast<uint32_t>(mCallingPid));
    clearCaller();
    return identity;
}

void IPCThreadState::restoreCallingIdentity(int64_t identity) {
    mCallingUid = highWord(identity);
    mCallingPid = static_cast<pid_t>(lowWord(identity));
    mCallingSid = nullptr;
}

void IPCThreadState::setStrictModePolicy(int32_t policy) {
    mStrictModePolicy = policy;
}

int32_t IPCThreadState::getStrictModePolicy() const {
    return mStrictModePolicy;
}

int64_t IPCThreadState::setCallingWorkSourceUid(uid_t uid) {
    const int64_t previous = setCallingWorkSourceUidWithoutPropagation(uid);
    mPropagateWorkSource = true;
    return previous;
}

int64_t IPCThreadState::setCallingWorkSourceUidWithoutPropagation(uid_t uid) {
    const int64_t previous =
            token(mPropagateWorkSource ? 1 : 0, static_cast<uint32_t>(mWorkSource));
    mWorkSource = static_cast<int32_t>(uid);
    return previous;
}

uid_t IPCThreadState::getCallingWorkSourceUid() const {
    return static_cast<uid_t>(mWorkSource);
}

int64_t IPCThreadState::clearCallingWorkSource() {
    return setCallingWorkSourceUid(static_cast<uid_t>(kUnsetWorkSource));
}

void IPCThreadState::restoreCallingWorkSource(int64_t previous) {
    mWorkSource = static_cast<int32_t>(lowWord(previous));
    mPropagateWorkSource = highWord(previous) == 1;
}

void IPCThreadState::clearPropagateWorkSource() {
    mPropagateWorkSource = false;
}

bool IPCThreadState::shouldPropagateWorkSource() const {
    return mPropagateWorkSource;
}

void IPCThreadState::setLastTransactionBinderFlags(int32_t flags) {
    mLastTransactionBinderFlags = flags;
}

int32_t IPCThreadState::getLastTransactionBinderFlags() const {
    return mLastTransactionBinderFlags;
}

const void* IPCThreadState::getServingStackPointer() const {
    return mServingStackPointer;
}

void IPCThreadState::disableBackgroundScheduling(bool disable) {
    gBackgroundSchedulingDisabled.store(disable, std::memory_order_release);
}

bool IPCThreadState::backgroundSchedulingDisabled() {
    return gBackgroundSchedulingDisabled.load(std::memory_order_acquire);
}

}  // namespace android
