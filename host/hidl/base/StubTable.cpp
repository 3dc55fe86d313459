#include "StubTable.h"

#include <hidl/HidlBinderSupport.h>

#include <map>
#include <mutex>

namespace android::hardware::details {
namespace {

struct Entry {
    wp<BnHwBase> stub;
    const BnHwBase* address;
};

struct StubTable {
    std::mutex lock;
    std::map<IBase*, Entry> stubs;
};

// Never destroyed: stubs may outlive the static objects of a process that ends.
StubTable& stubTable() {
    static StubTable* const table = new StubTable;
    return *table;
}

}  // namespace

sp<IBinder> getOrCreateStub(IBase* object, sp<BnHwBase> (*create)(IBase*)) {
    StubTable& table = stubTable();
    const std::lock_guard<std::mutex> guard(table.lock);
    const auto found = table.stubs.find(object);
    if (found != table.stubs.end()) {
        const sp<BnHwBase> stub = found->second.stub.promote();
        if (stub != nullptr) return stub;
    }
    const sp<BnHwBase> stub = create(object);
    table.stubs[object] = Entry{stub, stub.get()};
    return stub;
}

void forgetStub(IBase* object, const BnHwBase* stub) {
    StubTable& table = stubTable();
    const std::lock_guard<std::mutex> guard(table.lock);
    const auto found = table.stubs.find(object);
    // A newer stub may have taken the place already.
    if (found != table.stubs.end() && found->second.address == stub) table.stubs.erase(found);
}

}  // namespace android::hardware::details
