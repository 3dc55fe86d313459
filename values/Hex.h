#pragma once

#include <optional>
#include <string>

#include "values/Value.h"

namespace tarn::values {

/** Bytes as pairs of hexadecimal digits: "0a0b0c0d0e". */
std::string hexFromBytes(const Bytes& bytes);

/** The same with a blank after every fourth: "0a0b0c0d 0e". */
std::string hexWords(const Bytes& bytes);

/** The bytes that pairs of hexadecimal digits stand for, blanks ignored; nothing if it is none. */
std::optional<Bytes> bytesFromHex(const std::string& text);

}  // namespace tarn::values
