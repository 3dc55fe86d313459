#include "BusConnection.h"

#include <algorithm>
#include <exception>
#include <future>
#include <thread>

namespace android::host::dbus {

// The library waits for a bus that stands still for much longer, so another thread waits for the
// library.
std::unique_ptr<sdbus::IConnection> connectToBus(const std::string& address,
                                                 std::chrono::milliseconds patience) {
    const auto end = std::chrono::steady_clock::now() + patience;
    const auto promise = std::make_shared<std::promise<std::unique_ptr<sdbus::IConnection>>>();
    auto connected = promise->get_future();
    std::thread connecting([promise, address] {
        try {
            promise->set_value(sdbus::createSessionBusConnectionWithAddress(address));
        } catch (...) {
            promise->set_exception(std::current_exception());
        }
    });
    if (connected.wait_until(end) != std::future_status::ready) {
        connecting.detach();
        throw sdbus::Error("org.freedesktop.DBus.Error.NoReply", "the bus does not answer");
    }
    connecting.join();
    std::unique_ptr<sdbus::IConnection> connection = connected.get();
    const auto rest = std::chrono::duration_cast<std::chrono::milliseconds>(
            end - std::chrono::steady_clock::now());
    connection->setMethodCallTimeout(std::max(rest, std::chrono::milliseconds(1)));
    return connection;
}

}  // namespace android::host::dbus
