#pragma once

#include <pthread.h>
#include <tarn/TarnRecovery.h>
#include <utils/Condition.h>
#include <utils/Mutex.h>

#include <memory>

#include "recovery/Connection.h"

namespace android {

/** A connection, and the thread that looks after it. */
class RecoveryWatch {
  public:
    explicit RecoveryWatch(std::unique_ptr<Connection> connection);
    ~RecoveryWatch() { stop(); }

    TarnRecovery::Status recover();
    int start(ITarnRecoveryListener* listener, unsigned int periodMs);
    void stop();

  private:
    static void* threadLoop(void* watch);
    void run();
    void tell(int before, int now);
    bool stopped();
    void waitForPeriod();

    const std::unique_ptr<Connection> mConnection;
    Mutex mLock;
    Condition mStopping;
    int mRecovered = Connection::kAway;  // the connection that recover() told of
    bool mStarted = false;
    bool mStop = false;
    pthread_t mThread = {};
    ITarnRecoveryListener* mListener = nullptr;  // these two only change while there is no thread
    unsigned int mPeriodMs = 0;
};

}  // namespace android
