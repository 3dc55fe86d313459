#pragma once

#include <optional>
#include <string>

namespace android::host::dbus {

/** What every bus name of a service begins with. */
inline constexpr char kServicePrefix[] = "tarn.binder.name_";

/**
 * The bus name under which a service is published: the prefix, then the service's name with each
 * character that a bus name cannot hold escaped by '-' and a letter, two such characters in a row
 * by one letter. So 127 characters, the longest name that a service may have, always fit. Empty if
 * the service's name holds a character that none may have.
 */
std::string busNameOf(const std::string& service);

/** The service that is published under a bus name; none if it is not one of ours. */
std::optional<std::string> serviceNameOf(const std::string& busName);

/** True for such a name as the bus gives to a connection: ":1.42", numbers with dots between. */
bool isUniqueName(const std::string& name);

}  // namespace android::host::dbus
