#pragma once

#include <string>
#include <vector>

namespace tarnctl {

/**
 * Keeps the library's log out of standard error: on the device it goes where it always goes, at its
 * persisted level. Verbose, it goes to standard error from DEBUG up, in this process only.
 */
void routeLibraryLog(bool verbose);

/** The warnings and errors that were logged since this was last called; none if verbose. */
std::vector<std::string> takeLibraryWarnings();

/** The library's filter level: "WARN". */
std::string libraryLogLevel();

}  // namespace tarnctl
