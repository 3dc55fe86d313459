#pragma once

namespace android::host::dbus {

class DBusCarrier;

/** The carrier over the session bus, once connected; null where there is none. For tests. */
DBusCarrier* sessionCarrier();

}  // namespace android::host::dbus
