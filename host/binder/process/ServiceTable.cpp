#define LOG_TAG "ServiceManager"

#include "ServiceTable.h"

#include <log/log.h>
#include <utils/String8.h>

#include <chrono>
#include <set>
#include <utility>

#include "host/binder/carrier/Carrier.h"

namespace android::host {

namespace {

// The longest name that the platform accepts.
constexpr size_t kMaxNameLength = 127;

// How often waitForService() looks for a service of another process.
constexpr std::chrono::milliseconds kRemotePollInterval(100);

// The platform's rule, plus '@' and ':' for HIDL names, which share this table.
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

bool isAddable(const String16& name, const sp<IBinder>& service) {
    if (service != nullptr && isValidName(name)) return true;
    ALOGE("Service '%s' cannot be added", String8(name).string());
    return false;
}

}  // namespace

const sp<ServiceTable>& ServiceTable::get() {
    static const sp<ServiceTable>& table = *new sp<ServiceTable>(new ServiceTable);
    return table;
}

sp<IBinder> ServiceTable::checkService(const String16& name) const {
    {
        std::lock_guard<std::mutex> lock(mLock);
        const auto found = mServices.find(name);
        if (found != mServices.end()) return found->second.binder;
    }
    Carrier* const others = carrier();
    return others != nullptr ? others->find(name) : nullptr;
}

status_t ServiceTable::addService(const String16& name, const sp<IBinder>& service,
                                  bool /*allowIsolated*/, int dumpsysFlags) {
    if (!isAddable(name, service)) return BAD_VALUE;
    // What is replaced is released without the lock: its destructor may call this table.
    Entry entry{service, dumpsysFlags};
    exchange(name, &entry);
    Carrier* const others = carrier();
    const status_t status = others != nullptr ? others->publish(name, service) : NO_ERROR;
    if (status != NO_ERROR) exchange(name, &entry);
    return status;
}

status_t ServiceTable::addLocal(const String16& name, const sp<IBinder>& service) {
    if (!isAddable(name, service)) return BAD_VALUE;
    Entry entry{service, DUMP_FLAG_PRIORITY_DEFAULT};
    exchange(name, &entry);
    return NO_ERROR;
}

Vector<String16> ServiceTable::listServices(int dumpsysFlags) {
    std::set<String16> names;
    if (Carrier* others = carrier(); others != nullptr) {
        for (const String16& name : others->list()) names.insert(name);
    }
    std::lock_guard<std::mutex> lock(mLock);
    for (const auto& [name, entry] : mServices) {
        if ((entry.dumpsysFlags & dumpsysFlags) != 0) names.insert(name);
    }
    Vector<String16> sorted;
    for (const String16& name : names) sorted.add(name);
    return sorted;
}

sp<IBinder> ServiceTable::waitForService(const String16& name) {
    for (;;) {
        const sp<IBinder> service = checkService(name);
        if (service != nullptr) return service;
        std::unique_lock<std::mutex> lock(mLock);
        const auto isThere = [&] { return mServices.count(name) > 0; };
        if (carrier() == nullptr) {
            mAdded.wait(lock, isThere);
        } else {
            mAdded.wait_for(lock, kRemotePollInterval, isThere);
        }
    }
}

bool ServiceTable::remove(const String16& name) {
    std::map<String16, Entry>::node_type removed;
    {
        std::lock_guard<std::mutex> lock(mLock);
        removed = mServices.extract(name);
    }
    if (removed.empty()) return false;
    if (Carrier* others = carrier(); others != nullptr) others->withdraw(name);
    return true;
}

void ServiceTable::removeReplaced(const String16& name, const sp<IBinder>& service) {
    std::map<String16, Entry>::node_type removed;
    {
        std::lock_guard<std::mutex> lock(mLock);
        const auto found = mServices.find(name);
        if (found == mServices.end() || found->second.binder != service) return;
        removed = mServices.extract(found);
    }
    tellLost(name);
}

void ServiceTable::onLost(std::function<void(const String16& name)> lost) {
    std::lock_guard<std::mutex> lock(mLock);
    mLost = std::move(lost);
}

void ServiceTable::tellLost(const String16& name) {
    std::function<void(const String16&)> lost;
    {
        std::lock_guard<std::mutex> lock(mLock);
        lost = mLost;
    }
    if (lost) lost(name);
}

void ServiceTable::removeAll() {
    for (const String16& name : localNames()) remove(name);
}

// Swaps the entry of a name; one without a binder means no entry.
void ServiceTable::exchange(const String16& name, Entry* entry) {
    std::lock_guard<std::mutex> lock(mLock);
    std::swap(mServices[name], *entry);
    if (mServices[name].binder == nullptr) mServices.erase(name);
    mAdded.notify_all();
}

std::vector<String16> ServiceTable::localNames() const {
    std::lock_guard<std::mutex> lock(mLock);
    std::vector<String16> names;
    for (const auto& service : mServices) names.push_back(service.first);
    return names;
}

}  // namespace android::host
