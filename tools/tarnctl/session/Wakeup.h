#pragma once

#include <chrono>
#include <optional>

namespace tarnctl {

/** Wakes a waiting thread, from any thread and from a signal handler. */
class Wakeup {
  public:
    /** Throws std::system_error. */
    Wakeup();
    ~Wakeup();
    Wakeup(const Wakeup&) = delete;
    Wakeup& operator=(const Wakeup&) = delete;

    void signal() const;

    /** Waits for a signal since the last wait, so long at most; may return early. */
    void wait(std::optional<std::chrono::milliseconds> limit) const;

  private:
    int mReadEnd;
    int mWriteEnd;
};

/**
 * While it lives, SIGINT and SIGTERM don't end the process but wake somebody who asks received()
 * then. One at a time.
 */
class EndSignals {
  public:
    explicit EndSignals(const Wakeup& wakeup);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

    /** The latest signal, or 0. */
    int received() const;
};

}  // namespace tarnctl
