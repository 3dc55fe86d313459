#pragma once

#include <json/value.h>

#include <cstdint>
#include <initializer_list>
#include <limits>
#include <string>

#include "values/JsonError.h"

namespace tarn::values {

// Reading objects strictly; each throws JsonError.

/** Refuses what is no object, and keys that are not among those; what names it in the message. */
void checkKeys(const Json::Value& object, const std::string& what,
               std::initializer_list<const char*> allowed);

/** The member of that key, or null. */
const Json::Value* findMember(const Json::Value& object, const char* key);

/** A whole number within those limits, both included; what names it in the message. */
int64_t readNumber(const Json::Value& json, const std::string& what,
                   int64_t min = std::numeric_limits<int32_t>::min(),
                   int64_t max = std::numeric_limits<int32_t>::max());

/** A text in UTF-8. */
std::string readText(const Json::Value& json, const std::string& what);

/** Refuses a name that is empty or not UTF-8; at is the place to blame. */
void checkName(const Json::Value& at, const std::string& what, const std::string& name);

/** What read() returns; whatever it refuses is told to be of that field. */
template <typename Read>
auto inField(const std::string& what, const Read& read) try {
    return read();
} catch (const JsonError& error) {
    throw error.within(what);
}

}  // namespace tarn::values
