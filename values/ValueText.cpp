#include "values/ValueText.h"

#include <json/value.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "values/StrictJson.h"
#include "values/ValueJson.h"

namespace tarn::values {

using protocol::Field;
using protocol::Type;

namespace {

int32_t intFromText(const std::string& text) {
    const bool negative = !text.empty() && text[0] == '-';
    const char* first = text.data() + (negative ? 1 : 0);
    const char* end = text.data() + text.size();
    int base = 10;
    if (end - first > 2 && first[0] == '0' && (first[1] == 'x' || first[1] == 'X')) {
        first += 2;
        base = 16;
    }
    uint64_t magnitude = 0;
    const auto [stop, error] = std::from_chars(first, end, magnitude, base);
    const uint64_t limit = uint64_t{std::numeric_limits<int32_t>::max()} + (negative ? 1 : 0);
    if (error == std::errc::invalid_argument || stop != end) {
        throw std::invalid_argument("'" + text + "' is no whole number");
    }
    if (error == std::errc::result_out_of_range || magnitude > limit) {
        throw std::invalid_argument("'" + text + "' is beyond 32 bits");
    }
    const auto number = static_cast<int64_t>(magnitude);
    return static_cast<int32_t>(negative ? -number : number);
}

bool boolFromText(const std::string& text) {
    if (text == "true" || text == "on" || text == "1") return true;
    if (text == "false" || text == "off" || text == "0") return false;
    throw std::invalid_argument("'" + text + "' is neither true nor false");
}

float floatFromText(const std::string& text) {
    float number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end || !std::isfinite(number)) {
        throw std::invalid_argument("'" + text + "' is no number");
    }
    return number;
}

}  // namespace

Value valueFromText(const std::string& text, const Field& field) {
    switch (field.type) {
        case Type::kInt32:
            return Value{intFromText(text)};
        case Type::kBool:
            return Value{boolFromText(text)};
        case Type::kFloat:
            return Value{floatFromText(text)};
        case Type::kString16:
        case Type::kBytes:
            return valueFromJson(Json::Value(text), field);
        case Type::kList:
            return valueFromJson(parseJson(text), field);
    }
    throw std::invalid_argument("type is unknown");
}

}  // namespace tarn::values
