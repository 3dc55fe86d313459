#pragma once

#include <optional>
#include <string>

namespace android::host::dbus {

/** The bus itself. */
inline constexpr char kBusDaemon[] = "org.freedesktop.DBus";

/** The prefix of every service's bus name. */
inline constexpr char kServicePrefix[] = "tarn.binder.name_";

/**
 * The bus name under which a service is published: the prefix, then the service's name with each
 * character that a bus name cannot hold escaped by '-' and a letter, two such characters in a row
 * by one letter. So a name of 127 characters, the longest that a service may have, always fits.
 * Empty if the service's name holds a character that is not allowed.
 */
std::string busNameOf(const std::string& service);

/** The name of the service that a bus name stands for; none if it stands for no service. */
std::optional<std::string> serviceNameOf(const std::string& busName);

/** True for a name as the bus gives one to each connection: ":1.42", numbers with dots between. */
bool isUniqueName(const std::string& name);

}  // namespace android::host::dbus
