#pragma once

#include <string>
#include <vector>

#include "tools/tarnctl/output/Console.h"

namespace tarnctl {

/** tarnctl itself: the words after its name, and the exit code. */
int run(const std::vector<std::string>& arguments, const Streams& streams);

}  // namespace tarnctl
