#define LOG_TAG "ServiceManager"

#include "host/HostServiceManager.h"

#include <binder/IPCThreadState.h>
#include <binder/IServiceManager.h>
#include <log/log.h>
#include <unistd.h>
#include <utils/String8.h>

#include <mutex>

#include "ServiceTable.h"
#include "host/binder/dbus/BusName.h"
#include "host/binder/dbus/SessionCarrier.h"

namespace android {

namespace {

std::mutex gManagerLock;
sp<IServiceManager>& gManager = *new sp<IServiceManager>;

}  // namespace

IServiceManager::IServiceManager() = default;

IServiceManager::~IServiceManager() = default;

const String16& IServiceManager::getInterfaceDescriptor() const {
    static const String16& descriptor = *new String16("android.os.IServiceManager");
    return descriptor;
}

sp<IServiceManager> defaultServiceManager() {
    host::connectCarrier();
    std::lock_guard<std::mutex> lock(gManagerLock);
    if (gManager == nullptr) gManager = host::ServiceTable::get();
    return gManager;
}

void setDefaultServiceManager(const sp<IServiceManager>& sm) {
    std::lock_guard<std::mutex> lock(gManagerLock);
    LOG_ALWAYS_FATAL_IF(gManager != nullptr,
                        "setDefaultServiceManager() comes after defaultServiceManager()");
    gManager = sm;
}

bool checkPermission(const String16& /*permission*/, pid_t /*pid*/, uid_t uid) {
    return uid == 0 || uid == getuid();
}

bool checkCallingPermission(const String16& permission, int32_t* outPid, int32_t* outUid) {
    const IPCThreadState* thread = IPCThreadState::self();
    if (outPid != nullptr) *outPid = thread->getCallingPid();
    if (outUid != nullptr) *outUid = static_cast<int32_t>(thread->getCallingUid());
    return checkPermission(permission, thread->getCallingPid(), thread->getCallingUid());
}

bool checkCallingPermission(const String16& permission) {
    return checkCallingPermission(permission, nullptr, nullptr);
}

namespace host {

void onServiceLost(std::function<void(const String16& name)> lost) {
    ServiceTable::get()->onLost(std::move(lost));
}

status_t addLocalService(const String16& name, const sp<IBinder>& service) {
    return ServiceTable::get()->addLocal(name, service);
}

std::string busNameOfService(const String16& name) {
    return dbus::busNameOf(String8(name).string());
}

bool removeService(const String16& name) {
    return ServiceTable::get()->remove(name);
}

void removeAllServices() {
    ServiceTable::get()->removeAll();
}

}  // namespace host

}  // namespace android
