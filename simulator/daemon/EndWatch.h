#pragma once

namespace tarn::simulator {

/** Why a daemon stops serving. */
enum class EndCause : unsigned char { kSignal, kReplaced, kBusGone };

/** Waits for the end, which a signal or another thread brings. One at a time. */
class EndWatch {
  public:
    /**
     * From here on SIGINT, SIGTERM and SIGHUP are kept for wait(), by all threads started later.
     * Throws std::system_error.
     */
    EndWatch();
    ~EndWatch();
    EndWatch(const EndWatch&) = delete;
    EndWatch& operator=(const EndWatch&) = delete;

    /** Any thread may call; only the first cause counts. */
    void end(EndCause cause) const;

    EndCause wait() const;

  private:
    int mSignals;
    int mReadEnd;
    int mWriteEnd;
};

}  // namespace tarn::simulator
