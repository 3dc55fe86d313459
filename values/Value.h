#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "protocol/Layout.h"

namespace tarn::values {

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

/** Whether values of both fields look alike on the wire; names don't matter, bool is an i32. */
bool looksAlike(const protocol::Field& left, const protocol::Field& right);
bool looksAlike(const protocol::Layout& left, const protocol::Layout& right);

/** The value as that type: any i32 but 0 is true, false is 0; every other type stays. */
Value converted(Value value, protocol::Type type);

/** An i32 or bool as a status word. */
int32_t statusWord(const Value& value);

/** Whether every number in it is one, as JSON has them: neither infinity nor NaN. */
bool isFinite(const Value& value);

/** A field as a person reads it: "i32", "[s16 name, bool on]". */
std::string describe(const protocol::Field& field);

}  // namespace tarn::values
