#pragma once

#include <json/value.h>

#include <string>

#include "tools/tarnctl/board/BoardLink.h"

namespace tarnctl {

// A simulated board's properties by the names that a person types. Each throws Failure:
// kNoSuchName, with names that may have been meant, or kBadUsage.

/** Whether the board has a property of that name; "name[index]" has the name in front. */
bool hasProperty(const BoardLink& board, const std::string& name);

Json::Value readProperty(const BoardLink& board, const std::string& name);
void writeProperty(BoardLink* board, const std::string& name, const std::string& value);

}  // namespace tarnctl
