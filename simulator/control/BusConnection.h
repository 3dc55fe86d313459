#pragma once

#include <sdbus-c++/IConnection.h>
#include <sys/types.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

namespace tarn::simulator::bus {

/** There is no session bus, it can't be reached, or it went away; the message says which. */
class BusUnreachable : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/** A new connection to the bus that services are found on. Throws BusUnreachable. */
std::unique_ptr<sdbus::IConnection> connectSessionBus();

/** The unique name of a name's owner; nothing if nobody owns it. Throws BusUnreachable. */
std::optional<std::string> ownerOf(sdbus::IConnection& connection, const std::string& name);

/** The process that owns a name; 0 if nobody owns it. Throws BusUnreachable. */
pid_t processOf(sdbus::IConnection& connection, const std::string& name);

enum class NameOutcome { kTaken, kReplaced, kRefused };

/**
 * Takes a name that others may take over later, as they may with replace = true. Throws
 * BusUnreachable.
 */
NameOutcome takeName(sdbus::IConnection& connection, const std::string& name, bool replace);

}  // namespace tarn::simulator::bus
