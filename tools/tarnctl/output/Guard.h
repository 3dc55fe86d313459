#pragma once

#include <functional>

#include "tools/tarnctl/output/Console.h"

namespace tarnctl {

/** Runs what gives an exit code. What it throws is said, and makes the exit code. */
int guarded(const Diagnostics& diagnostics, const std::function<int()>& function);

}  // namespace tarnctl
