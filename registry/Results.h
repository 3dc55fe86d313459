#pragma once

#include <json/value.h>
#include <utils/String16.h>

#include <string>
#include <vector>

namespace tarn::registry {

/**
 * Adds a field after those that a record has. An object sorts its members by name; each one's
 * offset, which a parsed document's members have too, keeps its place among them.
 */
void appendField(Json::Value* record, const std::string& name, const Json::Value& value);

/** A record's names in the order in which its fields stand. */
std::vector<std::string> fieldNames(const Json::Value& record);

std::string toUtf8(const android::String16& text);

}  // namespace tarn::registry
