#include <binder/Binder.h>

namespace android {

namespace {

// Set in mState once the proxy's own strong reference owns one on the remote.
constexpr int32_t kRemoteAcquired = 1;

}  // namespace

// The remote lives while the proxy has strong references. A weak reference to the proxy can be
// promoted for as long as the remote can.
BpRefBase::BpRefBase(const sp<IBinder>& o) : mRemote(o.get()), mRefs(nullptr), mState(0) {
    extendObjectLifetime(OBJECT_LIFETIME_WEAK);
    if (mRemote != nullptr) {
        mRemote->incStrong(this);
        mRefs = mRemote->createWeak(this);
    }
}

BpRefBase::~BpRefBase() {
    if (mRemote == nullptr) return;
    // Never referenced strongly: the constructor's reference is still there.
    if ((mState.load(std::memory_order_acquire) & kRemoteAcquired) == 0) mRemote->decStrong(this);
    mRefs->decWeak(this);
}

void BpRefBase::onFirstRef() {
    mState.fetch_or(kRemoteAcquired, std::memory_order_release);
}

void BpRefBase::onLastStrongRef(const void* /*id*/) {
    if (mRemote != nullptr) mRemote->decStrong(this);
}

bool BpRefBase::onIncStrongAttempted(uint32_t /*flags*/, const void* /*id*/) {
    return mRemote != nullptr && mRefs->attemptIncStrong(this);
}

}  // namespace android
