// For the thread sanitizer alone: the platform's libutils is not instrumented, so the sanitizer
// can't see that counting references orders one thread's last use of an object before another
// thread's destruction of it. These two replace the library's own, within the library too, and tell
// the sanitizer.

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>
#include <utils/RefBase.h>

namespace android {

namespace {

template <typename Function>
Function* libraryFunction(const char* mangledName) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, mangledName));
}

// What this thread did to the object happens before what later threads do, and after what earlier
// ones did.
void order(const void* counted) {
    __tsan_release(const_cast<void*>(counted));
    __tsan_acquire(const_cast<void*>(counted));
}

}  // namespace

void RefBase::decStrong(const void* id) const {
    static const auto next = libraryFunction<void(const RefBase*, const void*)>(
            "_ZNK7android7RefBase9decStrongEPKv");
    order(this);
    next(this, id);
}

void RefBase::weakref_type::decWeak(const void* id) {
    static const auto next = libraryFunction<void(weakref_type*, const void*)>(
            "_ZN7android7RefBase12weakref_type7decWeakEPKv");
    order(this);
    next(this, id);
}

}  // namespace android
