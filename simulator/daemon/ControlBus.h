#pragma once

#include <sdbus-c++/IConnection.h>
#include <sdbus-c++/IObject.h>
#include <sdbus-c++/IProxy.h>
#include <sys/types.h>

#include <functional>
#include <memory>
#include <string>
#include <thread>

#include "simulator/BoardControl.h"
#include "simulator/control/BoardInterface.h"
#include "simulator/control/BusConnection.h"
#include "simulator/daemon/EndWatch.h"

namespace tarn::simulator {

/** The daemon's place on the session bus: its name, and the board's control under it. */
class ControlBus {
  public:
    /**
     * Connects; throws bus::BusUnreachable. ended is called when the name or the bus is lost, from
     * serve() on and of a loss before that as well.
     */
    explicit ControlBus(std::function<void(EndCause)> ended);
    ~ControlBus();
    ControlBus(const ControlBus&) = delete;
    ControlBus& operator=(const ControlBus&) = delete;

    /** The process that has the name now, 0 if none has it. */
    pid_t owner() { return ownerOf(bus::kBoardName); }

    /** The process that has another name of the bus. */
    pid_t ownerOf(const std::string& name) { return bus::processOf(*mConnection, name); }

    /** The process whose turn it is to start, 0 if none starts. */
    pid_t starter() { return ownerOf(bus::kStartName); }

    /** Takes the name; calls to it wait until serve(). */
    bus::NameOutcome takeName(bool replace) {
        return bus::takeName(*mConnection, bus::kBoardName, replace);
    }

    /** Offers the board's control, on a thread of its own. The board has to live longer. */
    void serve(BoardControl& board);

  private:
    void watchName();
    void run();

    const std::unique_ptr<sdbus::IConnection> mConnection;
    const std::function<void(EndCause)> mEnded;
    std::unique_ptr<sdbus::IProxy> mBus;
    std::unique_ptr<sdbus::IObject> mObject;
    std::thread mLoop;
};

}  // namespace tarn::simulator
