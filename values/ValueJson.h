#pragma once

#include <json/value.h>

#include "protocol/Layout.h"
#include "values/Value.h"

namespace tarn::values {

/**
 * Reads a value that has to fit the field exactly; throws JsonError. A list is an array of
 * records, a record an array of its fields (or its only field), bytes an array of numbers or a text
 * of hexadecimal pairs.
 */
Value valueFromJson(const Json::Value& json, const protocol::Field& field);

/** What valueFromJson would read; bytes as a text. */
Json::Value toJson(const Value& value);

}  // namespace tarn::values
