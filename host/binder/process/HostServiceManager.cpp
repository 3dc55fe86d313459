#define LOG_TAG "ServiceManager"

#include "host/HostServiceManager.h"

#include <binder/Binder.h>
#include <binder/IPCThreadState.h>
#include <binder/IServiceManager.h>
#include <log/log.h>
#include <unistd.h>

#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <set>

#include "host/binder/carrier/Carrier.h"

namespace android {

namespace {

// The longest name that the platform accepts.
constexpr size_t kMaxNameLength = 127;

// How often a service of another process is looked for while somebody waits for it.
constexpr std::chrono::milliseconds kRemotePollInterval(100);

// As the platform's service manager, plus '@' and ':' for HIDL names: one table serves both here.
bool isValidName(const String16& name) {
    if (name.size() == 0 || name.size() > kMaxNameLength) return false;
    for (size_t i = 0; i < name.size(); i++) {
        const char16_t c = name.string()[i];
        const bool letterOrDigit =
                (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        const bool punctuation =
                c == '_' || c == '-' || c == '.' || c == '/' || c == '@' || c == ':';
        if (!letterOrDigit && !punctuation) return false;
    }
    return true;
}

// The services of this process in a table, those of others by way of the carrier.
class ServiceTable : public IServiceManager {
  public:
    // Never destroyed: services outlive the destructors of other libraries.
    static const sp<ServiceTable>& get() {
        static const sp<ServiceTable>& table = *new sp<ServiceTable>(new ServiceTable);
        return table;
    }

    // Answers at once: who wants to wait for a service calls waitForService().
    sp<IBinder> getService(const String16& name) const override { return checkService(name); }

    sp<IBinder> checkService(const String16& name) const override {
        {
            std::lock_guard<std::mutex> lock(mLock);
            const auto found = mServices.find(name);
            if (found != mServices.end()) return found->second.binder;
        }
        host::Carrier* const carrier = host::carrier();
        return carrier != nullptr ? carrier->find(name) : nullptr;
    }

    status_t addService(const String16& name, const sp<IBinder>& service, bool /*allowIsolated*/,
                        int dumpsysFlags) override {
        if (!isAddable(name, service)) return BAD_VALUE;
        // What is replaced is released without the lock: its destructor may come back here.
        Entry entry{service, dumpsysFlags};
        exchange(name, &entry);
        host::Carrier* const carrier = host::carrier();
        const status_t status = carrier != nullptr ? carrier->publish(name, service) : NO_ERROR;
        if (status != NO_ERROR) exchange(name, &entry);
        return status;
    }

    status_t addLocal(const String16& name, const sp<IBinder>& service) {
        if (!isAddable(name, service)) return BAD_VALUE;
        Entry entry{service, DUMP_FLAG_PRIORITY_DEFAULT};
        exchange(name, &entry);
        return NO_ERROR;
    }

    Vector<String16> listServices(int dumpsysFlags) override {
        std::set<String16> names;
        if (host::Carrier* carrier = host::carrier(); carrier != nullptr) {
            for (const String16& name : carrier->list()) names.insert(name);
        }
        std::lock_guard<std::mutex> lock(mLock);
        for (const auto& [name, entry] : mServices) {
            if ((entry.dumpsysFlags & dumpsysFlags) != 0) names.insert(name);
        }
        Vector<String16> sorted;
        for (const String16& name : names) sorted.add(name);
        return sorted;
    }

    sp<IBinder> waitForService(const String16& name) override {
        for (;;) {
            const sp<IBinder> service = checkService(name);
            if (service != nullptr) return service;
            std::unique_lock<std::mutex> lock(mLock);
            const auto isThere = [&] { return mServices.count(name) > 0; };
            if (host::carrier() == nullptr) {
                mAdded.wait(lock, isThere);
            } else {
                mAdded.wait_for(lock, kRemotePollInterval, isThere);
            }
        }
    }

    // There is no manifest that could declare a service.
    bool isDeclared(const String16& /*name*/) override { return false; }

    bool remove(const String16& name) {
        std::map<String16, Entry>::node_type removed;
        {
            std::lock_guard<std::mutex> lock(mLock);
            removed = mServices.extract(name);
        }
        if (removed.empty()) return false;
        if (host::Carrier* carrier = host::carrier(); carrier != nullptr) carrier->withdraw(name);
        return true;
    }

    void removeReplaced(const String16& name, const sp<IBinder>& service) {
        std::map<String16, Entry>::node_type removed;
        std::lock_guard<std::mutex> lock(mLock);
        const auto found = mServices.find(name);
        if (found != mServices.end() && found->second.binder == service) {
            removed = mServices.extract(found);
        }
    }

    void removeAll() {
        for (const String16& name : localNames()) remove(name);
    }

  protected:
    IBinder* onAsBinder() override { return mBinder.get(); }

  private:
    struct Entry {
        sp<IBinder> binder;
        int dumpsysFlags = 0;
    };

    static bool isAddable(const String16& name, const sp<IBinder>& service) {
        if (service != nullptr && isValidName(name)) return true;
        ALOGE("Service '%s' cannot be added", String8(name).string());
        return false;
    }

    // Puts an entry in the place of another; one without a binder stands for none.
    void exchange(const String16& name, Entry* entry) {
        std::lock_guard<std::mutex> lock(mLock);
        std::swap(mServices[name], *entry);
        if (mServices[name].binder == nullptr) mServices.erase(name);
        mAdded.notify_all();
    }

    std::vector<String16> localNames() const {
        std::lock_guard<std::mutex> lock(mLock);
        std::vector<String16> names;
        for (const auto& service : mServices) names.push_back(service.first);
        return names;
    }

    // Who asks for the manager's binder gets one that answers the standard transactions.
    const sp<BBinder> mBinder = new BBinder;

    mutable std::mutex mLock;  // guards mServices
    std::condition_variable mAdded;
    std::map<String16, Entry> mServices;
};

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
    if (gManager == nullptr) gManager = ServiceTable::get();
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

void serviceReplaced(const String16& name, const sp<IBinder>& service) {
    ServiceTable::get()->removeReplaced(name, service);
}

status_t addLocalService(const String16& name, const sp<IBinder>& service) {
    return ServiceTable::get()->addLocal(name, service);
}

bool removeService(const String16& name) {
    return ServiceTable::get()->remove(name);
}

void removeAllServices() {
    ServiceTable::get()->removeAll();
}

}  // namespace host

}  // namespace android
