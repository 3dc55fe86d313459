#include "recovery/RecoveryWatch.h"

#include <utils/Timers.h>

#include <utility>

namespace android {

RecoveryWatch::RecoveryWatch(std::unique_ptr<Connection> connection)
    : mConnection(std::move(connection)) {}

TarnRecovery::Status RecoveryWatch::recover() {
    const int number = mConnection->renew();
    if (number == Connection::kAway || number == Connection::kBusy) return TarnRecovery::STILL_AWAY;
    AutoMutex guard(mLock);
    if (number == mRecovered) return TarnRecovery::NOTHING_TO_DO;
    mRecovered = number;
    return TarnRecovery::RECOVERED;
}

int RecoveryWatch::start(ITarnRecoveryListener* listener, unsigned int periodMs) {
    AutoMutex guard(mLock);
    if (mStarted) return -1;
    mListener = listener;
    mPeriodMs = periodMs;
    mStop = false;
    mStarted = pthread_create(&mThread, nullptr, threadLoop, this) == 0;
    return mStarted ? 0 : -1;
}

void RecoveryWatch::stop() {
    pthread_t thread = {};
    {
        AutoMutex guard(mLock);
        mStop = true;
        mStopping.broadcast();
        // Called back, the thread can't wait for itself: the next stop() does.
        if (!mStarted || pthread_equal(mThread, pthread_self()) != 0) return;
        mStarted = false;
        thread = mThread;
    }
    pthread_join(thread, nullptr);
}

void* RecoveryWatch::threadLoop(void* watch) {
    static_cast<RecoveryWatch*>(watch)->run();
    return nullptr;
}

void RecoveryWatch::run() {
    int seen = Connection::kBusy;
    while (!stopped()) {
        const int number = mConnection->renew();
        if (number != Connection::kBusy) {
            tell(seen, number);
            seen = number;
        }
        waitForPeriod();
    }
}

/** before is kBusy the first time, when nothing is known yet. */
void RecoveryWatch::tell(int before, int now) {
    if (mListener == nullptr || now == before) return;
    const bool lost =
            before == Connection::kBusy ? now == Connection::kAway : before != Connection::kAway;
    const bool back = before != Connection::kBusy && now != Connection::kAway;
    if (lost) mListener->serviceLost();
    if (back && !stopped()) mListener->serviceBack();
}

bool RecoveryWatch::stopped() {
    AutoMutex guard(mLock);
    return mStop;
}

void RecoveryWatch::waitForPeriod() {
    AutoMutex guard(mLock);
    const nsecs_t end = systemTime() + milliseconds_to_nanoseconds(mPeriodMs);
    for (nsecs_t left = end - systemTime(); !mStop && left > 0; left = end - systemTime()) {
        mStopping.waitRelative(mLock, left);
    }
}

}  // namespace android
