#pragma once

#include <json/value.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "protocol/Catalog.h"
#include "simulator/description/BoardModel.h"

namespace tarn::simulator {

/** The board's properties while its commands are read. */
struct PropertyTable {
    std::vector<Property> list;
    std::map<std::string, size_t> byName;
    std::set<std::string> refused;  // described, but wrongly
};

/**
 * Reads one command's description; throws JsonError. A command that uses a list or an index says
 * what it consists of: that is noted in the property, and two commands have to agree.
 */
CommandDescription readCommand(const protocol::Command& row, const Json::Value& json,
                               PropertyTable* properties);

}  // namespace tarn::simulator
