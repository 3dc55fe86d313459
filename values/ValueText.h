#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "protocol/Layout.h"
#include "values/Value.h"

namespace tarn::values {

// Values as a person types them; README.md has the grammar.

/** A text that can't be read: what() quotes it and says why, accepted() what would be taken. */
class TextError : public std::invalid_argument {
  public:
    TextError(const std::string& reason, const std::string& accepted)
        : std::invalid_argument(reason), mAccepted(accepted) {}

    const std::string& accepted() const { return mAccepted; }

  private:
    std::string mAccepted;
};

// Each throws TextError.

/** Decimal or 0x hexadecimal, which may be a negative number's word: 0xffffffff is -1. */
int32_t intFromText(const std::string& text);

/** The same from 0 to 4294967295. */
uint32_t unsignedFromText(const std::string& text);

/** true/false, on/off, yes/no, 1/0. */
bool boolFromText(const std::string& text);

/** Any number, and inf and nan. */
float floatFromText(const std::string& text);

/** A text in UTF-8. */
std::u16string utf16FromText(const std::string& text);

/** Pairs of hexadecimal digits, blanks ignored. */
Bytes bytesFromText(const std::string& text);

/** The parts between commas; an empty text is an empty list. */
std::vector<std::string> splitList(const std::string& text);

/**
 * Reads a value of the field's type. A list stands as JSON; one whose records have a single field
 * may stand as values separated by commas instead, unless it begins with a bracket. Throws
 * std::invalid_argument.
 */
Value valueFromText(const std::string& text, const protocol::Field& field);

}  // namespace tarn::values
