#pragma once

#include <sdbus-c++/sdbus-c++.h>

#include <chrono>
#include <memory>
#include <string>

namespace android::host::dbus {

/**
 * Connects to the bus at an address. Throws sdbus::Error if it cannot be reached or has not greeted
 * in time, std::system_error if there can be no thread to wait with. Whatever the connection then
 * asks the bus and waits for has to be answered within the rest of that time.
 */
std::unique_ptr<sdbus::IConnection> connectToBus(const std::string& address,
                                                 std::chrono::milliseconds patience);

}  // namespace android::host::dbus
