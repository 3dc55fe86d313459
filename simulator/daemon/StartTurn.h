#pragma once

#include <sdbus-c++/IConnection.h>
#include <sys/types.h>

#include <memory>

#include "simulator/control/BoardInterface.h"
#include "simulator/control/BusConnection.h"

namespace tarn::simulator {

/**
 * The turn to start, from take() on for as long as this lives. Of several tarn-boards that start at
 * the same time one after the other takes the control's name and then the service's; else each
 * could end with one of the two.
 */
class StartTurn {
  public:
    /** Connects; throws bus::BusUnreachable, as the others do. */
    StartTurn() : mConnection(bus::connectSessionBus()) {}

    /** False, for now, if another process has it. */
    bool take() {
        return bus::takeName(*mConnection, bus::kStartName, false) != bus::NameOutcome::kRefused;
    }

    /** The process that has the turn, 0 if none has it. */
    pid_t holder() { return bus::processOf(*mConnection, bus::kStartName); }

  private:
    const std::unique_ptr<sdbus::IConnection> mConnection;
};

}  // namespace tarn::simulator
