#define LOG_TAG "BBinder"

#include <binder/Binder.h>
#include <binder/BpBinder.h>
#include <binder/Parcel.h>
#include <log/log.h>
#include <unistd.h>
#include <utils/Mutex.h>
#include <utils/misc.h>

namespace android {

// What few binders need, made at its first use.
class BBinder::Extras {
  public:
    Mutex lock;  // guards objects
    BpBinder::ObjectManager objects;

    // These are set before the binder is handed to others.
    bool requestingSid = false;
    sp<IBinder> extension;
};

BBinder::BBinder() : mExtras(nullptr), mReserved0(nullptr) {}

BBinder::~BBinder() {
    delete mExtras.load(std::memory_order_acquire);
}

BBinder::Extras* BBinder::getOrCreateExtras() {
    Extras* existing = mExtras.load(std::memory_order_acquire);
    if (existing != nullptr) return existing;
    auto created = std::make_unique<Extras>();
    if (mExtras.compare_exchange_strong(existing, created.get(), std::memory_order_acq_rel)) {
        return created.release();
    }
    return existing;
}

const String16& BBinder::getInterfaceDescriptor() const {
    static const String16& empty = *new String16;
    ALOGW("BBinder %p has no interface descriptor of its own", this);
    return empty;
}

bool BBinder::isBinderAlive() const {
    return true;
}

status_t BBinder::pingBinder() {
    return NO_ERROR;
}

status_t BBinder::dump(int /*fd*/, const Vector<String16>& /*args*/) {
    return NO_ERROR;
}

status_t BBinder::transact(uint32_t code, const Parcel& data, Parcel* reply, uint32_t flags) {
    data.setDataPosition(0);
    // The reply to a one-way call is thrown away, yet the target may write one.
    Parcel discarded;
    Parcel* const target = reply != nullptr ? reply : &discarded;

    status_t status = NO_ERROR;
    switch (code) {
        case PING_TRANSACTION:
            status = pingBinder();
            break;
        case EXTENSION_TRANSACTION:
            status = target->writeStrongBinder(getExtension());
            break;
        case DEBUG_PID_TRANSACTION:
            status = target->writeInt32(getDebugPid());
            break;
        case INTERFACE_TRANSACTION:
            status = onTransact(code, data, target, flags);
            break;
        default:
            status = onTransact(code, data, reply, flags);
            break;
    }
    if (reply != nullptr) reply->setDataPosition(0);
    return status;
}

status_t BBinder::onTransact(uint32_t code, const Parcel& data, Parcel* reply, uint32_t /*flags*/) {
    switch (code) {
        case INTERFACE_TRANSACTION:
            return reply->writeString16(getInterfaceDescriptor());
        case DUMP_TRANSACTION: {
            const int fd = data.readFileDescriptor();
            return fd < 0 ? fd : dump(fd, Vector<String16>());
        }
        case SHELL_COMMAND_TRANSACTION:
            return INVALID_OPERATION;
        case SYSPROPS_TRANSACTION:
            report_sysprop_change();
            return NO_ERROR;
        default:
            return UNKNOWN_TRANSACTION;
    }
}

status_t BBinder::linkToDeath(const sp<DeathRecipient>& /*recipient*/, void* /*cookie*/,
                              uint32_t /*flags*/) {
    return INVALID_OPERATION;
}

status_t BBinder::unlinkToDeath(const wp<DeathRecipient>& /*recipient*/, void* /*cookie*/,
                                uint32_t /*flags*/, wp<DeathRecipient>* /*outRecipient*/) {
    return INVALID_OPERATION;
}

void BBinder::attachObject(const void* objectID, void* object, void* cleanupCookie,
                           object_cleanup_func func) {
    Extras* extras = getOrCreateExtras();
    AutoMutex lock(extras->lock);
    extras->objects.attach(objectID, object, cleanupCookie, func);
}

void* BBinder::findObject(const void* objectID) const {
    Extras* extras = mExtras.load(std::memory_order_acquire);
    if (extras == nullptr) return nullptr;
    AutoMutex lock(extras->lock);
    return extras->objects.find(objectID);
}

void BBinder::detachObject(const void* objectID) {
    Extras* extras = mExtras.load(std::memory_order_acquire);
    if (extras == nullptr) return;
    AutoMutex lock(extras->lock);
    extras->objects.detach(objectID);
}

BBinder* BBinder::localBinder() {
    return this;
}

bool BBinder::isRequestingSid() {
    Extras* extras = mExtras.load(std::memory_order_acquire);
    return extras != nullptr && extras->requestingSid;
}

void BBinder::setRequestingSid(bool requestSid) {
    getOrCreateExtras()->requestingSid = requestSid;
}

sp<IBinder> BBinder::getExtension() {
    Extras* extras = mExtras.load(std::memory_order_acquire);
    return extras != nullptr ? extras->extension : nullptr;
}

void BBinder::setExtension(const sp<IBinder>& extension) {
    getOrCreateExtras()->extension = extension;
}

pid_t BBinder::getDebugPid() {
    return getpid();
}

}  // namespace android
