#pragma once

#include <json/value.h>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include "protocol/Layout.h"

namespace tarn::simulator {

using Bytes = std::vector<uint8_t>;

struct Value;
using Record = std::vector<Value>;
using List = std::vector<Record>;

/** One field's content, as it stands in a request, in a reply or in a property. */
struct Value {
    std::variant<int32_t, bool, float, std::u16string, Bytes, List> data;

    bool operator==(const Value& other) const { return data == other.data; }
    bool operator!=(const Value& other) const { return !(*this == other); }
};

/** What is wrong with a piece of JSON, and where it begins in its text. */
class JsonError : public std::invalid_argument {
  public:
    JsonError(const Json::Value& at, const std::string& reason)
        : std::invalid_argument(reason), mOffset(at.getOffsetStart()) {}

    ptrdiff_t offset() const { return mOffset; }

    /** The same, told to be of that field. */
    JsonError within(const std::string& field) const {
        return JsonError(mOffset, field + ": " + what());
    }

  private:
    JsonError(ptrdiff_t offset, const std::string& reason)
        : std::invalid_argument(reason), mOffset(offset) {}

    ptrdiff_t mOffset;
};

/** Whether values of both fields look alike on the wire; names don't matter, bool is an i32. */
bool looksAlike(const protocol::Field& left, const protocol::Field& right);
bool looksAlike(const protocol::Layout& left, const protocol::Layout& right);

/** The value as that type: any i32 but 0 is true, false is 0; every other type stays. */
Value converted(Value value, protocol::Type type);

/** An i32 or bool as a status word. */
int32_t statusWord(const Value& value);

/**
 * Reads a value that has to fit the field exactly; throws JsonError. A list is an array of
 * records, a record an array of its fields (or its only field), bytes an array of numbers or a text
 * of hexadecimal pairs.
 */
Value valueFromJson(const Json::Value& json, const protocol::Field& field);

/**
 * Reads what a person types: numbers in decimal or 0x hexadecimal, true/false/on/off/1/0, a text as
 * it is, a list as JSON. Throws std::invalid_argument.
 */
Value valueFromText(const std::string& text, const protocol::Field& field);

/** What valueFromJson would read; bytes as a text. */
Json::Value toJson(const Value& value);

/** Reads one JSON document and nothing but that; throws std::invalid_argument. */
Json::Value parseJson(const std::string& text);

/** A field as a person reads it: "i32", "[s16 name, bool on]". */
std::string describe(const protocol::Field& field);

}  // namespace tarn::simulator
