#pragma once

#include <utils/Mutex.h>
#include <utils/StrongPointer.h>

namespace android {

/**
 * A process-wide strong reference that any thread may read and replace. The lock covers the copy
 * of the pointer alone: nothing is called while it is held.
 */
template <typename T>
class SharedReference {
  public:
    sp<T> get() const {
        AutoMutex guard(mLock);
        return mReference;
    }

    void set(const sp<T>& reference) {
        sp<T> old;  // released after the lock: the last reference may run a destructor
        AutoMutex guard(mLock);
        old = mReference;
        mReference = reference;
    }

    void clear() { set(nullptr); }

  private:
    mutable Mutex mLock;
    sp<T> mReference;
};

}  // namespace android
