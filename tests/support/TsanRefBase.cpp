// For the thread sanitizer alone: the platform's libutils is not instrumented, so the sanitizer
// can't see that counting references orders one thread's last use of an object before another
// thread's destruction of it. This program's RefBase::decStrong comes before the library's and says
// so.

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>
#include <utils/RefBase.h>

namespace android {

void RefBase::decStrong(const void* id) const {
    using DecStrong = void (*)(const RefBase*, const void*);
    static const auto next =
            reinterpret_cast<DecStrong>(dlsym(RTLD_NEXT, "_ZNK7android7RefBase9decStrongEPKv"));
    void* const self = const_cast<RefBase*>(this);
    __tsan_release(self);
    __tsan_acquire(self);
    next(this, id);
}

}  // namespace android
