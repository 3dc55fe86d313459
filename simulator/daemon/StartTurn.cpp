#include "simulator/daemon/StartTurn.h"

#include <thread>

#include "simulator/control/BoardInterface.h"
#include "simulator/control/BusConnection.h"

namespace tarn::simulator {

StartTurn::StartTurn() : mConnection(bus::connectSessionBus()) {
    constexpr std::chrono::milliseconds kAgain{10};
    const auto deadline = std::chrono::steady_clock::now() + kLongest;
    for (;;) {
        mMine = bus::takeName(*mConnection, bus::kStartName, false) != bus::NameOutcome::kRefused;
        if (mMine || std::chrono::steady_clock::now() >= deadline) return;
        std::this_thread::sleep_for(kAgain);
    }
}

pid_t StartTurn::holder() const {
    return bus::processOf(*mConnection, bus::kStartName);
}

}  // namespace tarn::simulator
