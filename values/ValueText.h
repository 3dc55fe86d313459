#pragma once

#include <string>

#include "protocol/Layout.h"
#include "values/Value.h"

namespace tarn::values {

/**
 * Reads what a person types: numbers in decimal or 0x hexadecimal, true/false/on/off/1/0, a text as
 * it is, a list as JSON. Throws std::invalid_argument.
 */
Value valueFromText(const std::string& text, const protocol::Field& field);

}  // namespace tarn::values
