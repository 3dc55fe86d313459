#pragma once

#include <string>
#include <vector>

namespace tarnctl {

/** What tarnctl --help prints. */
std::vector<std::string> helpLines();

/** What tarnctl COMMAND --help prints; throws Failure(kBadUsage). */
std::vector<std::string> helpLines(const std::string& command);

}  // namespace tarnctl
