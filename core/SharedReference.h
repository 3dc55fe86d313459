#pragma once

#include <utils/Mutex.h>
#include <utils/StrongPointer.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace android {

/**
 * A process-wide strong reference that any thread may read and replace as it would an sp<>. The
 * lock covers the copy of the pointer alone: nothing is called while it is held.
 *
 * Each replacement has a number of its own, so that whoever keeps a copy can tell without the lock
 * whether it is still what all others find.
 *
 * The destructor releases the reference, but neither it nor the lock is ever destroyed: a thread
 * that comes while the process ends finds the reference empty.
 */
template <typename T>
class SharedReference {
  public:
    SharedReference() : mReference(), mLock(), mEdition(0) {}
    ~SharedReference() { clear(); }

    SharedReference(const SharedReference&) = delete;
    SharedReference& operator=(const SharedReference&) = delete;

    operator sp<T>() const { return read(nullptr); }

    /** The object is held until the end of the full expression. */
    sp<T> operator->() const { return *this; }

    SharedReference& operator=(const sp<T>& reference) {
        sp<T> old(reference);  // released after the lock: the last reference may run a destructor
        AutoMutex guard(mLock);
        std::swap(mReference, old);
        nextEdition();
        return *this;
    }

    void clear() { *this = nullptr; }

    /** Takes reference where there is none yet. Returns the one that it holds then. */
    sp<T> setIfEmpty(const sp<T>& reference, uint32_t* edition = nullptr) {
        AutoMutex guard(mLock);
        if (mReference == nullptr) {
            mReference = reference;
            nextEdition();
        }
        return readLocked(edition);
    }

    /** The number of what it holds now. */
    uint32_t edition() const { return mEdition.load(std::memory_order_acquire); }

    /** A copy, and its number where one is asked for. */
    sp<T> read(uint32_t* edition) const {
        AutoMutex guard(mLock);
        return readLocked(edition);
    }

    bool operator==(std::nullptr_t) const {
        AutoMutex guard(mLock);
        return mReference == nullptr;
    }

    bool operator!=(std::nullptr_t) const { return !(*this == nullptr); }

  private:
    sp<T> readLocked(uint32_t* edition) const {
        if (edition != nullptr) *edition = mEdition.load(std::memory_order_relaxed);
        return mReference;
    }

    void nextEdition() { mEdition.fetch_add(1, std::memory_order_release); }

    union {
        sp<T> mReference;
    };
    union {
        mutable Mutex mLock;
    };
    std::atomic<uint32_t> mEdition;
};

}  // namespace android
