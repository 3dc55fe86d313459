#pragma once

#include <utils/Mutex.h>
#include <utils/StrongPointer.h>

#include <cstddef>
#include <utility>

namespace android {

/**
 * A process-wide strong reference that any thread may read and replace as it would an sp<>. The
 * lock covers the copy of the pointer alone: nothing is called while it is held.
 *
 * The destructor releases the reference, but neither it nor the lock is ever destroyed: a thread
 * that comes while the process ends finds the reference empty.
 */
template <typename T>
class SharedReference {
  public:
    SharedReference() : mReference(), mLock() {}
    ~SharedReference() { clear(); }

    SharedReference(const SharedReference&) = delete;
    SharedReference& operator=(const SharedReference&) = delete;

    operator sp<T>() const {
        AutoMutex guard(mLock);
        return mReference;
    }

    /** The object is held until the end of the full expression. */
    sp<T> operator->() const { return *this; }

    SharedReference& operator=(const sp<T>& reference) {
        sp<T> old(reference);  // released after the lock: the last reference may run a destructor
        AutoMutex guard(mLock);
        std::swap(mReference, old);
        return *this;
    }

    void clear() { *this = nullptr; }

    /** Takes reference where there is none yet. Returns the one that it holds then. */
    sp<T> setIfEmpty(const sp<T>& reference) {
        AutoMutex guard(mLock);
        if (mReference == nullptr) mReference = reference;
        return mReference;
    }

    bool operator==(std::nullptr_t) const {
        AutoMutex guard(mLock);
        return mReference == nullptr;
    }

    bool operator!=(std::nullptr_t) const { return !(*this == nullptr); }

  private:
    union {
        sp<T> mReference;
    };
    union {
        mutable Mutex mLock;
    };
};

}  // namespace android
