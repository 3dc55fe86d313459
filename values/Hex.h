#pragma once

#include <optional>
#include <string>

#include "values/Value.h"

namespace tarn::values {

/** Bytes as pairs of hexadecimal digits: "0a0bff". */
std::string hexFromBytes(const Bytes& bytes);

/** The bytes that pairs of hexadecimal digits stand for, blanks ignored; nothing if it is none. */
std::optional<Bytes> bytesFromHex(const std::string& text);

}  // namespace tarn::values
