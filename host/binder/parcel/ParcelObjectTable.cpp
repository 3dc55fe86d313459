#include "ParcelObjectTable.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

namespace android::parcel {

namespace {

ObjectEntry* mutableEntries(binder_size_t* objects) {
    return static_cast<ObjectEntry*>(static_cast<void*>(objects));
}

// The first entry whose object ends after the given place.
const ObjectEntry* firstEndingAfter(const binder_size_t* objects, size_t count, size_t place) {
    const ObjectEntry* entries = entriesOf(objects);
    return std::lower_bound(entries, entries + count, place,
                            [](const ObjectEntry& entry, size_t value) {
                                return entry.offset + kObjectSize <= value;
                            });
}

}  // namespace

status_t ObjectTable::reserve(size_t count) {
    if (count <= mCapacity) return NO_ERROR;
    const size_t capacity = count * 3 / 2 + 1;
    void* storage = realloc(mStorage, capacity * sizeof(ObjectEntry));
    if (storage == nullptr) return NO_MEMORY;
    mStorage = static_cast<binder_size_t*>(storage);
    mCapacity = capacity;
    return NO_ERROR;
}

status_t ObjectTable::put(size_t offset, IBinder* binder) {
    const status_t status = reserve(mSize + 1);
    if (status != NO_ERROR) return status;

    ObjectEntry* entries = mutableEntries(mStorage);
    const size_t first = firstEndingAfter(mStorage, mSize, offset) - entries;
    size_t last = first;
    while (last < mSize && entries[last].offset < offset + kObjectSize) last++;

    binder->incStrong(binder);
    std::vector<IBinder*> replaced;
    for (size_t i = first; i < last; i++) replaced.push_back(entries[i].binder);
    memmove(entries + first + 1, entries + last, (mSize - last) * sizeof(ObjectEntry));
    entries[first] = {offset, binder};
    mSize = mSize + 1 - replaced.size();
    for (IBinder* old : replaced) old->decStrong(old);
    return NO_ERROR;
}

status_t ObjectTable::putRange(const binder_size_t* objects, size_t count, size_t start,
                               size_t length, size_t target) {
    // Copied and held first: a parcel may append a part of itself, over objects of that part.
    std::vector<std::pair<size_t, sp<IBinder>>> within;
    forEachObject(objects, count, [&](size_t offset, IBinder* binder) {
        if (offset >= start && offset + kObjectSize <= start + length) {
            within.emplace_back(offset - start + target, binder);
        }
    });
    for (const auto& [offset, binder] : within) {
        const status_t status = put(offset, binder.get());
        if (status != NO_ERROR) return status;
    }
    return NO_ERROR;
}

void ObjectTable::truncate(size_t dataSize) {
    while (mSize > 0 && entriesOf(mStorage)[mSize - 1].offset + kObjectSize > dataSize) {
        IBinder* last = entriesOf(mStorage)[--mSize].binder;
        last->decStrong(last);
    }
}

void ObjectTable::clear() {
    truncate(0);
    free(mStorage);
    mStorage = nullptr;
    mCapacity = 0;
}

IBinder* findObject(const binder_size_t* objects, size_t count, size_t offset) {
    const ObjectEntry* entry = firstEndingAfter(objects, count, offset);
    return entry != entriesOf(objects) + count && entry->offset == offset ? entry->binder : nullptr;
}

bool overlapsObject(const binder_size_t* objects, size_t count, size_t begin, size_t end) {
    const ObjectEntry* entry = firstEndingAfter(objects, count, begin);
    return entry != entriesOf(objects) + count && entry->offset < end;
}

}  // namespace android::parcel
