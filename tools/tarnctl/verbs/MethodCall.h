#pragma once

#include <string>
#include <vector>

#include "tools/tarnctl/catalog/Lookup.h"
#include "tools/tarnctl/verbs/Verbs.h"

namespace tarnctl {

/**
 * Calls the overload that takes so many values and prints its result; values that can't be used are
 * refused before a service is looked for. Returns the exit code as invoke() does.
 */
int callMethod(Context& context, const Overloads& overloads,
               const std::vector<std::string>& values);

}  // namespace tarnctl
