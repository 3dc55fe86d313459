#pragma once

#include <json/value.h>

#include <string>
#include <vector>

namespace tarnctl {

/** The kinds of fault and what may follow them, as a person types them. */
std::vector<std::string> faultWords();

/**
 * Reads "status -3 every 2", "dead", "bytes 8", "delay 250 probability 0.5 seed 7" as the board's
 * files write a fault. Throws Failure or BadArgument.
 */
Json::Value parseFault(const std::vector<std::string>& words);

}  // namespace tarnctl
