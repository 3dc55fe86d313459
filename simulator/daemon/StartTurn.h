#pragma once

#include <sdbus-c++/IConnection.h>
#include <sys/types.h>

#include <chrono>
#include <memory>

namespace tarn::simulator {

/**
 * The turn to start, for as long as this lives. Of several tarn-boards that start at the same time
 * one after the other takes the control's name and then the service's; else each could end with one
 * of the two.
 */
class StartTurn {
  public:
    /** How long a start may take before the next one gives up. */
    static constexpr std::chrono::seconds kLongest{10};

    /** Waits for it. Throws bus::BusUnreachable. */
    StartTurn();
    StartTurn(const StartTurn&) = delete;
    StartTurn& operator=(const StartTurn&) = delete;

    /** False if another process kept it too long. */
    bool mine() const { return mMine; }

    /** The process that has the turn now, 0 if none has it. */
    pid_t holder() const;

  private:
    const std::unique_ptr<sdbus::IConnection> mConnection;
    bool mMine = false;
};

}  // namespace tarn::simulator
