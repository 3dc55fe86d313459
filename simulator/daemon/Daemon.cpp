#include "simulator/daemon/Daemon.h"

#include <hidl/HidlTransportSupport.h>
#include <sdbus-c++/Error.h>
#include <signal.h>
#include <unistd.h>
#include <utils/Errors.h>
#include <utils/String16.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <system_error>

#include "host/HostServiceManager.h"
#include "simulator/BoardFiles.h"
#include "simulator/control/LocalBoard.h"
#include "simulator/daemon/ControlBus.h"
#include "simulator/daemon/StartTurn.h"
#include "simulator/daemon/TracedBoard.h"
#include "simulator/description/BoardLoader.h"

namespace tarn::simulator {

using ::android::sp;
using ::vendor::zunt::hwtarn::V1_0::IHwTarn;

namespace {

/** A command that a fault delays keeps its thread, so there are more than a client or two need. */
constexpr size_t kThreads = 16;

/** How long a tarn-board may take to start before the next one gives up, and how often that looks.
 */
constexpr std::chrono::seconds kLongestStart{10};
constexpr std::chrono::milliseconds kTurnPeriod{10};

/** Ends the daemon with an exit code and a line on standard error. */
class Refusal : public std::runtime_error {
  public:
    Refusal(DaemonExit code, const std::string& message)
        : std::runtime_error(message), mCode(code) {}

    DaemonExit code() const { return mCode; }

  private:
    DaemonExit mCode;
};

void say(const std::string& line) {
    fprintf(stderr, "tarn-board: %s\n", line.c_str());
}

sp<SimulatedBoard> makeBoard(const DaemonOptions& options) {
    const std::string path = options.board.empty() ? defaultBoardPath() : options.board;
    try {
        const auto model = loadBoard(path, options.overrides);
        return options.verbose ? new TracedBoard(model) : new SimulatedBoard(model);
    } catch (const BoardFileError& error) {
        throw Refusal(kUnusable, std::string("the board is refused:\n") + error.what());
    }
}

void applySetting(BoardControl* control, const std::string& property, const std::string& value) {
    try {
        control->setProperty(property, value);
    } catch (const std::invalid_argument& refusal) {
        throw Refusal(kUnusable, "--set " + property + "=" + value + ": " + refusal.what());
    }
}

std::string processText(pid_t pid) {
    return pid > 0 ? "process " + std::to_string(pid) : "another process";
}

pid_t processOf(const sp<IHwTarn>& service) {
    pid_t pid = 0;
    if (service == nullptr) return pid;
    service->getDebugInfo([&pid](const IHwTarn::DebugInfo& info) { pid = info.pid; });
    return pid;
}

/** Makes sure that it is this process that may serve. */
void claim(ControlBus* bus, bool replace) {
    const pid_t owner = bus->owner();
    if (bus->takeName(replace) == bus::NameOutcome::kRefused) {
        throw Refusal(kAlreadyServed, "another tarn-board serves already (" + processText(owner) +
                                              "); --replace takes over from it");
    }
    if (replace) return;
    if (const sp<IHwTarn> service = IHwTarn::getService()) {
        throw Refusal(kAlreadyServed, "the hardware service is served already (" +
                                              processText(processOf(service)) +
                                              "); --replace takes over from it");
    }
}

/** A service that nobody reaches any more is no use to go on with. */
void endWhenLost(const std::shared_ptr<EndWatch>& watch) {
    ::android::host::onServiceLost(
            [watch](const ::android::String16&) { watch->end(EndCause::kServiceLost); });
}

void publish(const sp<SimulatedBoard>& board) {
    ::android::hardware::configureRpcThreadpool(kThreads, false);
    const ::android::status_t status = board->registerAsService();
    if (status != ::android::OK) {
        throw Refusal(kNotPublished,
                      "the board can't be published: error " + std::to_string(status));
    }
}

/** A service that has no connection of its own to the bus, or is not let have its name, hears
 * nothing of that. */
void requireFound(ControlBus* bus) {
    const std::string service = std::string(IHwTarn::descriptor) + "/default";
    const std::string name =
            ::android::host::busNameOfService(::android::String16(service.c_str()));
    const pid_t owner = bus->ownerOf(name);
    if (owner == getpid()) return;
    if (owner != 0) {
        throw Refusal(kAlreadyServed,
                      "the hardware service was taken over by " + processText(owner));
    }
    throw Refusal(kNoBus, "the session bus does not let the hardware service be found");
}

/** Waits for the turn to start; false if the daemon is told to end before. */
bool waitForTurn(StartTurn* turn, const EndWatch& watch) {
    const auto deadline = std::chrono::steady_clock::now() + kLongestStart;
    while (!turn->take()) {
        if (std::chrono::steady_clock::now() >= deadline) {
            throw Refusal(kAlreadyServed, "another tarn-board has been starting for " +
                                                  std::to_string(kLongestStart.count()) +
                                                  " seconds (" + processText(turn->holder()) + ")");
        }
        if (watch.comesWithin(kTurnPeriod)) return false;
    }
    return true;
}

/**
 * Takes both names, the control's first: a tarn-board that loses it knows that the other one
 * follows. False if the daemon is told to end before.
 */
bool start(const sp<SimulatedBoard>& board, BoardControl* control, ControlBus* bus,
           const std::shared_ptr<EndWatch>& watch, bool replace) {
    StartTurn turn;
    if (!waitForTurn(&turn, *watch)) return false;
    claim(bus, replace);
    endWhenLost(watch);
    publish(board);
    bus->serve(*control);
    requireFound(bus);
    return true;
}

/** Another process has one name or both: all is well if it is a tarn-board that takes both. */
void endTakenOver(ControlBus* bus, bool quiet) {
    const pid_t starter = bus->starter();
    const bool starts = starter != 0 && starter != getpid();
    const pid_t controller = bus->owner();
    const pid_t server = processOf(IHwTarn::getService());
    // One that starts takes the control first.
    if (controller == getpid() || (!starts && server != controller && server != getpid())) {
        throw Refusal(kAlreadyServed,
                      "the hardware service was taken over by " + processText(server));
    }
    if (!starts && server != controller) {
        throw Refusal(kAlreadyServed,
                      "the board's control was taken over by " + processText(controller));
    }
    if (!quiet) say("another tarn-board took over (" + processText(controller) + ")");
}

int serve(const DaemonOptions& options) {
    // A board's file may be a pipe that nobody writes to.
    endAtSignals(kEnded);
    const sp<SimulatedBoard> board = makeBoard(options);
    // A thread of binder's may still tell of something when this has returned.
    const auto watch = std::make_shared<EndWatch>();
    const std::unique_ptr<BoardControl> control = controlOf(board);
    for (const auto& [property, value] : options.settings) {
        applySetting(control.get(), property, value);
    }

    ControlBus bus([watch](EndCause cause) { watch->end(cause); });
    if (!start(board, control.get(), &bus, watch, options.replace)) return kEnded;
    if (!options.quiet) {
        say("serving board \"" + control->name() + "\" as " + IHwTarn::descriptor +
            " \"default\", process " + std::to_string(getpid()));
    }
    switch (watch->wait()) {
        case EndCause::kSignal:
            break;
        case EndCause::kServiceLost:
            // Then it has the service, but for itself alone.
            if (processOf(IHwTarn::getService()) == getpid()) {
                throw Refusal(kNoBus, "the session bus went away");
            }
            [[fallthrough]];
        case EndCause::kControlLost:
            endTakenOver(&bus, options.quiet);
            break;
        case EndCause::kBusGone:
            throw Refusal(kNoBus, "the session bus went away");
    }
    return kEnded;
}

}  // namespace

int runDaemon(const DaemonOptions& options) try {
    // Whoever reads standard error may end before the daemon does.
    signal(SIGPIPE, SIG_IGN);
    return serve(options);
} catch (const Refusal& refusal) {
    say(refusal.what());
    return refusal.code();
} catch (const bus::BusUnreachable& error) {
    say(error.what());
    return kNoBus;
} catch (const sdbus::Error& error) {
    say("the session bus refuses the board: " + error.getMessage());
    return kNoBus;
} catch (const std::system_error& error) {
    say(std::string("the system is out of resources: ") + error.what());
    return kNoBus;
}

}  // namespace tarn::simulator
