#include "core/ServiceInUse.h"

#include <utility>

#include "core/HwTarnClient.h"

using ::vendor::zunt::hwtarn::V1_0::IHwTarn;

namespace android {

// Without a destructor, so that threads which are ending may still call: see Release.
struct ServiceInUse::Kept {
    IHwTarn* service;  // a strong reference
    uint32_t edition;
    enum { UNUSED, IN_USE, ENDED } state;
};

namespace {

thread_local ServiceInUse::Kept tKept = {};

/** Releases what a thread keeps at its end; what calls afterwards keeps nothing. */
struct Release {
    ~Release() {
        tKept.state = ServiceInUse::Kept::ENDED;
        ServiceInUse::forget();
    }
};

bool mayKeep(ServiceInUse::Kept* kept) {
    if (kept->state == ServiceInUse::Kept::UNUSED) {
        static thread_local Release release;
        kept->state = ServiceInUse::Kept::IN_USE;
    }
    return kept->state == ServiceInUse::Kept::IN_USE;
}

void release(IHwTarn* service, const void* holder) {
    if (service != nullptr) service->decStrong(holder);
}

}  // namespace

ServiceInUse::ServiceInUse()
    : mKept(tKept), mService(std::exchange(mKept.service, nullptr)), mEdition(mKept.edition) {
    if (mService == nullptr || mEdition != mHwTarnService.edition()) renew();
}

void ServiceInUse::renew() {
    release(mService, this);
    const sp<IHwTarn> service = obtainHwTarnService(&mEdition);
    mService = service.get();
    if (mService != nullptr) mService->incStrong(this);
}

ServiceInUse::~ServiceInUse() {
    if (mService != nullptr && mKept.service == nullptr && mEdition == mHwTarnService.edition() &&
        mayKeep(&mKept)) {
        mKept.service = mService;
        mKept.edition = mEdition;
    } else {
        release(mService, this);
    }
}

void ServiceInUse::forget() {
    release(std::exchange(tKept.service, nullptr), &tKept);
}

}  // namespace android
