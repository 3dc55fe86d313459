#pragma once

#include <string>

namespace tarnctl {

/**
 * Keeps the library's log out of standard error: on the device it goes where it always goes, at its
 * persisted level. Verbose, it goes to standard error from DEBUG up, in this process only.
 */
void routeLibraryLog(bool verbose);

/** The library's filter level: "WARN". */
std::string libraryLogLevel();

}  // namespace tarnctl
