#pragma once

#include <json/value.h>

#include <functional>
#include <string>
#include <vector>

#include "tools/tarnctl/board/Boards.h"

namespace tarnctl {

// A simulated board's properties by the names that a person types. Each throws Failure:
// kNoSuchName, with names that may have been meant, kBadUsage, or kUnreachable.

std::vector<std::string> propertyNames(const BoardControl& board);

/** Whether the board has a property of that name; "name[index]" has the name in front. */
bool hasProperty(const BoardControl& board, const std::string& name);

Json::Value readProperty(const BoardControl& board, const std::string& name);
void writeProperty(BoardControl* board, const std::string& name, const std::string& value);

/**
 * Runs what works with a board: what the board refuses becomes Failure(kBadUsage), its silence
 * Failure(kUnreachable).
 */
void reachBoard(const std::function<void()>& work);

}  // namespace tarnctl
