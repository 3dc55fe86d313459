#define LOG_TAG "Parcel"

#include "LogLimit.h"

#include <log/log.h>

#include <mutex>
#include <utility>

namespace android::parcel {

bool LogLimit::admit(Time now, size_t* leftOut) {
    *leftOut = 0;
    if (mWritten == 0 || now - mPeriodStart >= kPeriod) {
        mPeriodStart = now;
        mWritten = 0;
    }
    if (mWritten == kLines) {
        mLeftOut++;
        return false;
    }
    mWritten++;
    *leftOut = std::exchange(mLeftOut, 0);
    return true;
}

bool mayLog() {
    static std::mutex lock;
    static LogLimit limit;
    size_t leftOut = 0;
    {
        std::lock_guard<std::mutex> guard(lock);
        if (!limit.admit(std::chrono::steady_clock::now(), &leftOut)) return false;
    }
    if (leftOut > 0) ALOGW("%zu lines about parcels were left out", leftOut);
    return true;
}

}  // namespace android::parcel
