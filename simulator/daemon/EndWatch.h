#pragma once

#include <atomic>
#include <chrono>

namespace tarn::simulator {

/** Why a daemon stops serving. */
enum class EndCause {
    kSignal,
    kControlLost,  // another process has the control's name
    kServiceLost,  // another process is the hardware service, or the bus is lost to it
    kBusGone,
};

/**
 * From here on SIGINT, SIGTERM and SIGHUP end the process with this exit code at once, until an
 * EndWatch keeps them.
 */
void endAtSignals(int code);

/** Waits for the end, which a signal or another thread brings. One at a time. */
class EndWatch {
  public:
    /** From here on SIGINT, SIGTERM and SIGHUP are kept for wait(), by all threads started later.
     */
    EndWatch();
    EndWatch(const EndWatch&) = delete;
    EndWatch& operator=(const EndWatch&) = delete;

    /** Any thread may call; only the first cause counts, and it counts before a signal. */
    void end(EndCause cause);

    EndCause wait() const;

    /** Waits so long at most; whether the end came. */
    bool comesWithin(std::chrono::milliseconds time) const;

  private:
    std::atomic<EndCause> mCause{EndCause::kSignal};
};

}  // namespace tarn::simulator
