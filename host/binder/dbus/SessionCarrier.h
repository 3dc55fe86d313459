#pragma once

namespace android::host {

/** The first call sets a carrier over the session bus, if there is a bus and no carrier yet. */
void connectCarrier();

namespace dbus {

class DBusCarrier;

/** The carrier over the session bus, once connected; null where there is none. For tests. */
DBusCarrier* sessionCarrier();

}  // namespace dbus

}  // namespace android::host
