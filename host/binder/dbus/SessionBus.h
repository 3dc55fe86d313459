#pragma once

#include <string>

namespace android::host::dbus {

class DBusCarrier;

/** Where the session bus is, as the environment says; empty if there is none. */
std::string sessionBusAddress();

/** The carrier over the session bus, once connected; null where there is none. For tests. */
DBusCarrier* sessionCarrier();

}  // namespace android::host::dbus
