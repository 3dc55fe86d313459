#pragma once

#include <string>

namespace android::host::dbus {

/** Where the session bus is, as the environment says; empty if there is none. */
std::string sessionBusAddress();

}  // namespace android::host::dbus
