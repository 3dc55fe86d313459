#pragma once

#include <json/value.h>

#include <cstdint>
#include <initializer_list>
#include <limits>
#include <string>

#include "simulator/Value.h"

namespace tarn::simulator {

// Reading objects strictly; each throws JsonError.

/** Refuses what is no object, and keys that are not among those. */
void checkKeys(const Json::Value& object, std::initializer_list<const char*> allowed);

/** The member of that key, or null. */
const Json::Value* findMember(const Json::Value& object, const char* key);

/** A whole number within those limits, both included; what names it in the message. */
int64_t readNumber(const Json::Value& json, const std::string& what,
                   int64_t min = std::numeric_limits<int32_t>::min(),
                   int64_t max = std::numeric_limits<int32_t>::max());

std::string readText(const Json::Value& json, const std::string& what);

}  // namespace tarn::simulator
