#pragma once

#include <json/value.h>

#include <functional>

#include "tools/tarnctl/verbs/Verbs.h"

namespace tarnctl {

/**
 * Makes a call on the session's manager within the time limit, shows what passed if that is asked
 * for, and prints the result. The exit code comes from what the service answered, not from the
 * result. Throws what the call throws, and Failure(kUnreachable) if there is no answer in time.
 */
int invoke(Context& context, const std::function<Json::Value(TracingManager&)>& call);

}  // namespace tarnctl
