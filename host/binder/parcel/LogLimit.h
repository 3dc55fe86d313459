#pragma once

#include <chrono>
#include <cstddef>

namespace android::parcel {

/** Decides which of many log lines are written: the first ones of every second. */
class LogLimit {
  public:
    using Time = std::chrono::steady_clock::time_point;

    /** So many lines may begin in one period. */
    static constexpr size_t kLines = 100;
    static constexpr std::chrono::seconds kPeriod{1};

    /**
     * True if a line may be written now. `leftOut` is then the number of lines that were left out
     * before it and not told of yet.
     */
    bool admit(Time now, size_t* leftOut);

  private:
    Time mPeriodStart{};
    size_t mWritten = 0;
    size_t mLeftOut = 0;
};

/**
 * True if a line about a parcel may be written; says how many were left out before it. What a
 * parcel holds is up to other processes, so its lines are as many as they like. On any thread.
 */
bool mayLog();

}  // namespace android::parcel
