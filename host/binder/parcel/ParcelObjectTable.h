#pragma once

#include <binder/Parcel.h>

namespace android::parcel {

// How many bytes of the data an object takes; its stability word follows.
inline constexpr size_t kObjectSize = 24;

/**
 * The binders that lie among a parcel's bytes, ordered by offset, each held by a strong reference.
 *
 * Works on the three members that the platform's header gives Parcel for it. What a parcel hands
 * out comes from here and never from the bytes, so that overwritten bytes cannot forge a pointer.
 */
class ObjectTable {
  public:
    ObjectTable(binder_size_t*& storage, size_t& size, size_t& capacity)
        : mStorage(storage), mSize(size), mCapacity(capacity) {}

    /** Adds the object at an offset in place of all that it overlaps. NO_MEMORY changes nothing. */
    status_t put(size_t offset, IBinder* binder);
    /** Adds what another table holds within [start, start + length), moved to begin at target. */
    status_t putRange(const binder_size_t* objects, size_t count, size_t start, size_t length,
                      size_t target);
    /** Drops the objects that do not lie wholly within the first dataSize bytes. */
    void truncate(size_t dataSize);
    void clear();

  private:
    status_t reserve(size_t count);

    binder_size_t*& mStorage;
    size_t& mSize;
    size_t& mCapacity;
};

/** The object at exactly this offset; null if there is none. */
IBinder* findObject(const binder_size_t* objects, size_t count, size_t offset);

/** True if bytes of [begin, end) belong to an object. */
bool overlapsObject(const binder_size_t* objects, size_t count, size_t begin, size_t end);

/** Calls visit(offset, binder) for each object in the order of the offsets. */
template <typename Visitor>
void forEachObject(const binder_size_t* objects, size_t count, Visitor visit);

struct ObjectEntry {
    size_t offset;
    IBinder* binder;
};

inline const ObjectEntry* entriesOf(const binder_size_t* objects) {
    return static_cast<const ObjectEntry*>(static_cast<const void*>(objects));
}

template <typename Visitor>
void forEachObject(const binder_size_t* objects, size_t count, Visitor visit) {
    const ObjectEntry* entries = entriesOf(objects);
    for (size_t i = 0; i < count; i++) visit(entries[i].offset, entries[i].binder);
}

}  // namespace android::parcel
