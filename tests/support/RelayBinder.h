#pragma once

#include <binder/Binder.h>
#include <utils/StrongPointer.h>

#include <atomic>

namespace tarn::test {

/**
 * Stands for another process's object: it answers no local interface, so a proxy is made for it,
 * hands every transaction on to the object behind it, and dies when it is told to.
 */
class RelayBinder : public android::BBinder {
  public:
    explicit RelayBinder(const android::sp<android::IBinder>& target) : mTarget(target) {}

    android::status_t linkToDeath(const android::sp<DeathRecipient>& recipient, void*,
                                  uint32_t) override {
        if (mDead) return android::DEAD_OBJECT;
        mRecipient = recipient;
        mLinks++;
        return android::OK;
    }

    android::status_t pingBinder() override {
        mPings++;
        return mDead ? android::DEAD_OBJECT : android::OK;
    }

    /** Tells the recipient that was linked last. */
    void die() {
        mDead = true;
        const android::sp<DeathRecipient> recipient = mRecipient.promote();
        if (recipient != nullptr) recipient->binderDied(this);
    }

    int links() const { return mLinks; }
    int pings() const { return mPings; }
    android::sp<DeathRecipient> recipient() const { return mRecipient.promote(); }

  protected:
    android::status_t onTransact(uint32_t code, const android::Parcel& data, android::Parcel* reply,
                                 uint32_t flags) override {
        if (mDead) return android::DEAD_OBJECT;
        return mTarget->transact(code, data, reply, flags);
    }

  private:
    android::sp<android::IBinder> mTarget;
    android::wp<DeathRecipient> mRecipient;
    std::atomic<int> mLinks{0};
    std::atomic<int> mPings{0};
    std::atomic<bool> mDead{false};
};

}  // namespace tarn::test
