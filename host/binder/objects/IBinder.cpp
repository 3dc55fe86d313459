#define LOG_TAG "IBinder"

#include <binder/Binder.h>
#include <binder/BpBinder.h>
#include <binder/IBinder.h>
#include <binder/IInterface.h>
#include <binder/Parcel.h>
#include <log/log.h>

namespace android {

IBinder::IBinder() = default;

IBinder::~IBinder() = default;

sp<IInterface> IBinder::queryLocalInterface(const String16& /*descriptor*/) {
    return nullptr;
}

BBinder* IBinder::localBinder() {
    return nullptr;
}

BpBinder* IBinder::remoteBinder() {
    return nullptr;
}

bool IBinder::checkSubclass(const void* /*subclassID*/) const {
    return false;
}

status_t IBinder::shellCommand(const sp<IBinder>& /*target*/, int, int, int,
                               Vector<String16>& /*args*/, const sp<IShellCallback>& /*callback*/,
                               const sp<IResultReceiver>& /*resultReceiver*/) {
    ALOGE("Shell commands need file descriptors, which cannot be sent on this host");
    return INVALID_OPERATION;
}

status_t IBinder::getExtension(sp<IBinder>* out) {
    if (BBinder* local = localBinder(); local != nullptr) {
        *out = local->getExtension();
        return OK;
    }
    Parcel data;
    Parcel reply;
    const status_t status = transact(EXTENSION_TRANSACTION, data, &reply);
    return status == OK ? reply.readNullableStrongBinder(out) : status;
}

status_t IBinder::getDebugPid(pid_t* outPid) {
    if (BBinder* local = localBinder(); local != nullptr) {
        *outPid = local->getDebugPid();
        return OK;
    }
    Parcel data;
    Parcel reply;
    status_t status = transact(DEBUG_PID_TRANSACTION, data, &reply);
    int32_t pid = 0;
    if (status == OK) status = reply.readInt32(&pid);
    if (status == OK) *outPid = pid;
    return status;
}

}  // namespace android
