#include "simulator/daemon/ControlBus.h"

#include <sdbus-c++/Error.h>

#include <string>
#include <utility>

#include "simulator/control/BoardObject.h"

namespace tarn::simulator {

ControlBus::ControlBus(std::function<void(EndCause)> ended)
    : mConnection(bus::connectSessionBus()), mEnded(std::move(ended)) {
    // Before the name is taken: who asks for the news later does not get what came in between.
    watchName();
}

ControlBus::~ControlBus() {
    if (!mLoop.joinable()) return;
    mConnection->leaveEventLoop();
    mLoop.join();
}

void ControlBus::serve(BoardControl& board) {
    mObject = bus::offerBoard(*mConnection, board);
    mLoop = std::thread([this] { run(); });
}

void ControlBus::watchName() {
    mBus = sdbus::createProxy(*mConnection, "org.freedesktop.DBus", "/org/freedesktop/DBus");
    mBus->uponSignal("NameLost")
            .onInterface("org.freedesktop.DBus")
            .call([this](const std::string& name) {
                // Others can send the same signal to this process.
                const sdbus::Message* const signal = mBus->getCurrentlyProcessedMessage();
                if (signal->getSender() != "org.freedesktop.DBus") return;
                if (name == bus::kBoardName) mEnded(EndCause::kControlLost);
            });
    mBus->finishRegistration();
}

void ControlBus::run() try { mConnection->enterEventLoop(); } catch (const sdbus::Error&) {
    mEnded(EndCause::kBusGone);
}

}  // namespace tarn::simulator
