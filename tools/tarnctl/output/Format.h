#pragma once

#include <json/value.h>

#include <cstdint>
#include <string>
#include <vector>

#include "protocol/Layout.h"
#include "tools/tarnctl/output/JsonStyle.h"
#include "values/Value.h"

namespace tarnctl {

/**
 * A result as a person reads it, a line each: a list of plain values one below the other, a record
 * as "name: value" with its lists and records below, indented.
 */
std::vector<std::string> plainLines(const Json::Value& value);

/** A result as one JSON document; short is a single line. */
std::string jsonText(const Json::Value& value, JsonStyle style);

/** A record as an object of named values, texts as the platform has them, bytes as hexWords(). */
Json::Value namedFields(const ::tarn::values::Record& record,
                        const ::tarn::protocol::Layout& layout);

/** "0x1402" */
std::string hexCode(uint32_t code);

/** The texts with this between them. */
std::string joined(const std::vector<std::string>& texts, const std::string& separator);

}  // namespace tarnctl
