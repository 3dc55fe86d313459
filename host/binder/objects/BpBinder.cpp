#define LOG_TAG "BpBinder"

#include <binder/BpBinder.h>
#include <binder/IPCThreadState.h>
#include <binder/ProcessState.h>
#include <log/log.h>

namespace android {

namespace {

// Proxies are not counted by user on a host.
constexpr int32_t kUntracked = -1;

int32_t load(const volatile int32_t& flag) {
    return __atomic_load_n(&flag, __ATOMIC_ACQUIRE);
}

void store(volatile int32_t& flag, int32_t value) {
    __atomic_store_n(&flag, value, __ATOMIC_RELEASE);
}

}  // namespace

BpBinder::ObjectManager::ObjectManager() = default;

BpBinder::ObjectManager::~ObjectManager() {
    kill();
}

void BpBinder::ObjectManager::attach(const void* objectID, void* object, void* cleanupCookie,
                                     IBinder::object_cleanup_func func) {
    if (mObjects.indexOfKey(objectID) >= 0) {
        ALOGE("Object %p is attached to binder %p already", objectID, this);
        return;
    }
    mObjects.add(objectID, entry_t{object, cleanupCookie, func});
}

void* BpBinder::ObjectManager::find(const void* objectID) const {
    const ssize_t index = mObjects.indexOfKey(objectID);
    return index >= 0 ? mObjects.valueAt(static_cast<size_t>(index)).object : nullptr;
}

void BpBinder::ObjectManager::detach(const void* objectID) {
    mObjects.removeItem(objectID);
}

void BpBinder::ObjectManager::kill() {
    for (size_t i = 0; i < mObjects.size(); i++) {
        const entry_t& entry = mObjects.valueAt(i);
        if (entry.func != nullptr) {
            entry.func(mObjects.keyAt(i), entry.object, entry.cleanupCookie);
        }
    }
    mObjects.clear();
}

BpBinder* BpBinder::create(int32_t handle) {
    return new BpBinder(handle, kUntracked);
}

BpBinder::BpBinder(int32_t handle, int32_t trackedUid)
    : mHandle(handle),
      mAlive(1),
      mObitsSent(0),
      mObituaries(nullptr),
      mConstantData(nullptr),
      mTrackedUid(trackedUid) {
    // The process finds the proxy of a handle again while there are weak references.
    extendObjectLifetime(OBJECT_LIFETIME_WEAK);
    IPCThreadState::self()->incWeakHandle(handle, this);
}

BpBinder::~BpBinder() {
    delete mObituaries;
    IPCThreadState* thread = IPCThreadState::self();
    if (thread == nullptr) return;
    IPCThreadState::expungeHandle(mHandle, this);
    thread->decWeakHandle(mHandle);
}

void BpBinder::onFirstRef() {
    IPCThreadState::self()->incStrongHandle(mHandle, this);
}

void BpBinder::onLastStrongRef(const void* /*id*/) {
    IPCThreadState* thread = IPCThreadState::self();
    if (thread == nullptr) return;
    {
        AutoMutex lock(mLock);
        // If it was found by its handle again meanwhile, it may have new recipients.
        if (mObituaries != nullptr && getStrongCount() == 0) {
            thread->clearDeathNotification(mHandle, this);
            delete mObituaries;
            mObituaries = nullptr;
        }
    }
    thread->decStrongHandle(mHandle);
}

bool BpBinder::onIncStrongAttempted(uint32_t /*flags*/, const void* /*id*/) {
    return IPCThreadState::self()->attemptIncStrongHandle(mHandle) == NO_ERROR;
}

int32_t BpBinder::handle() const {
    return mHandle;
}

bool BpBinder::isDescriptorCached() const {
    AutoMutex lock(mLock);
    return mDescriptorCache.size() > 0;
}

const String16& BpBinder::getInterfaceDescriptor() const {
    // Once set, the cache never changes.
    if (isDescriptorCached()) return mDescriptorCache;

    Parcel data;
    Parcel reply;
    // Without the lock: the call may lead back to this process.
    const status_t status =
            const_cast<BpBinder*>(this)->transact(INTERFACE_TRANSACTION, data, &reply);
    const String16 descriptor = status == NO_ERROR ? reply.readString16() : String16();
    AutoMutex lock(mLock);
    if (mDescriptorCache.size() == 0) {
        static const String16& unknown = *new String16;
        if (descriptor.size() == 0) return unknown;
        mDescriptorCache = descriptor;
    }
    return mDescriptorCache;
}

bool BpBinder::isBinderAlive() const {
    return load(mAlive) != 0;
}

status_t BpBinder::pingBinder() {
    Parcel data;
    Parcel reply;
    return transact(PING_TRANSACTION, data, &reply);
}

status_t BpBinder::dump(int /*fd*/, const Vector<String16>& /*args*/) {
    ALOGE("A dump needs a file descriptor, which cannot be sent on this host");
    return INVALID_OPERATION;
}

status_t BpBinder::transact(uint32_t code, const Parcel& data, Parcel* reply, uint32_t flags) {
    // Once dead, a remote object never comes back to life.
    if (!isBinderAlive()) return DEAD_OBJECT;
    const uint32_t sent = flags & ~static_cast<uint32_t>(FLAG_PRIVATE_VENDOR);
    const status_t status = IPCThreadState::self()->transact(mHandle, code, data, reply, sent);
    if (status == DEAD_OBJECT) store(mAlive, 0);
    return status;
}

status_t BpBinder::linkToDeath(const sp<DeathRecipient>& recipient, void* cookie, uint32_t flags) {
    if (recipient == nullptr) {
        ALOGE("linkToDeath() needs a recipient");
        return BAD_VALUE;
    }
    AutoMutex lock(mLock);
    if (load(mObitsSent) != 0 || !isBinderAlive()) return DEAD_OBJECT;
    if (mObituaries == nullptr) {
        mObituaries = new Vector<Obituary>;
        IPCThreadState::self()->requestDeathNotification(mHandle, this);
    }
    mObituaries->add(Obituary{recipient, cookie, flags});
    return NO_ERROR;
}

status_t BpBinder::unlinkToDeath(const wp<DeathRecipient>& recipient, void* cookie, uint32_t flags,
                                 wp<DeathRecipient>* outRecipient) {
    AutoMutex lock(mLock);
    if (load(mObitsSent) != 0) return DEAD_OBJECT;
    const size_t count = mObituaries != nullptr ? mObituaries->size() : 0;
    for (size_t i = 0; i < count; i++) {
        const Obituary& obituary = mObituaries->itemAt(i);
        const bool same = obituary.recipient == recipient ||
                          (recipient == nullptr && obituary.cookie == cookie);
        if (!same || obituary.flags != flags) continue;
        if (outRecipient != nullptr) *outRecipient = obituary.recipient;
        mObituaries->removeAt(i);
        if (mObituaries->isEmpty()) {
            IPCThreadState::self()->clearDeathNotification(mHandle, this);
            delete mObituaries;
            mObituaries = nullptr;
        }
        return NO_ERROR;
    }
    return NAME_NOT_FOUND;
}

void BpBinder::sendObituary() {
    store(mAlive, 0);
    Vector<Obituary>* obituaries;
    {
        AutoMutex lock(mLock);
        if (load(mObitsSent) != 0) return;
        store(mObitsSent, 1);
        obituaries = mObituaries;
        mObituaries = nullptr;
        if (obituaries == nullptr) return;
        IPCThreadState::self()->clearDeathNotification(mHandle, this);
    }
    for (const Obituary& obituary : *obituaries) reportOneDeath(obituary);
    delete obituaries;
}

void BpBinder::reportOneDeath(const Obituary& obit) {
    const sp<DeathRecipient> recipient = obit.recipient.promote();
    if (recipient != nullptr) recipient->binderDied(wp<IBinder>(this));
}

void BpBinder::attachObject(const void* objectID, void* object, void* cleanupCookie,
                            object_cleanup_func func) {
    AutoMutex lock(mLock);
    mObjects.attach(objectID, object, cleanupCookie, func);
}

void* BpBinder::findObject(const void* objectID) const {
    AutoMutex lock(mLock);
    return mObjects.find(objectID);
}

void BpBinder::detachObject(const void* objectID) {
    AutoMutex lock(mLock);
    mObjects.detach(objectID);
}

BpBinder* BpBinder::remoteBinder() {
    return this;
}

}  // namespace android
