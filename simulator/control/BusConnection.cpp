#include "simulator/control/BusConnection.h"

#include <sdbus-c++/Error.h>
#include <sdbus-c++/IProxy.h>

#include <cstdint>

#include "host/SessionBusAddress.h"

namespace tarn::simulator::bus {

namespace {

constexpr char kDaemonName[] = "org.freedesktop.DBus";
constexpr char kDaemonPath[] = "/org/freedesktop/DBus";

constexpr uint32_t kAllowReplacement = 1;
constexpr uint32_t kReplaceExisting = 2;
constexpr uint32_t kDoNotQueue = 4;

constexpr uint32_t kPrimaryOwner = 1;
constexpr uint32_t kAlreadyOwner = 4;

/** Calls the bus itself; nothing if it answers with the expected error. */
template <typename Result, typename... Args>
std::optional<Result> callBus(sdbus::IConnection& connection, const char* method,
                              const char* expectedError, const Args&... arguments) try {
    const auto proxy = sdbus::createProxy(connection, kDaemonName, kDaemonPath);
    Result result{};
    proxy->callMethod(method)
            .onInterface(kDaemonName)
            .withArguments(arguments...)
            .storeResultsTo(result);
    return result;
} catch (const sdbus::Error& error) {
    if (error.getName() == expectedError) return std::nullopt;
    throw BusUnreachable("the session bus does not answer: " + error.getMessage());
}

constexpr char kNoOwner[] = "org.freedesktop.DBus.Error.NameHasNoOwner";

}  // namespace

std::unique_ptr<sdbus::IConnection> connectSessionBus() {
    const std::string address = android::host::dbus::sessionBusAddress();
    if (address.empty()) {
        throw BusUnreachable(
                "there is no session bus: DBUS_SESSION_BUS_ADDRESS is not set; dbus-run-session "
                "starts one");
    }
    try {
        return sdbus::createSessionBusConnectionWithAddress(address);
    } catch (const sdbus::Error& error) {
        throw BusUnreachable("the session bus at " + address +
                             " can't be reached: " + error.getMessage());
    }
}

std::optional<std::string> ownerOf(sdbus::IConnection& connection, const std::string& name) {
    return callBus<std::string>(connection, "GetNameOwner", kNoOwner, name);
}

pid_t processOf(sdbus::IConnection& connection, const std::string& name) {
    const auto pid = callBus<uint32_t>(connection, "GetConnectionUnixProcessID", kNoOwner, name);
    return static_cast<pid_t>(pid.value_or(0));
}

NameOutcome takeName(sdbus::IConnection& connection, const std::string& name, bool replace) {
    const bool owned = ownerOf(connection, name).has_value();
    const uint32_t flags = kAllowReplacement | kDoNotQueue | (replace ? kReplaceExisting : 0);
    const auto reply = callBus<uint32_t>(connection, "RequestName", "", name, flags);
    if (reply != kPrimaryOwner && reply != kAlreadyOwner) return NameOutcome::kRefused;
    return owned ? NameOutcome::kReplaced : NameOutcome::kTaken;
}

}  // namespace tarn::simulator::bus
