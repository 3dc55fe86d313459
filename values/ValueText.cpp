#include "values/ValueText.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>
#include <utility>

#include "values/Hex.h"
#include "values/StrictJson.h"
#include "values/Utf8.h"
#include "values/ValueJson.h"

namespace tarn::values {

using protocol::Field;
using protocol::Type;

namespace {

constexpr char kInts[] =
        "a number from -2147483648 to 2147483647, decimal or 0x hexadecimal, where 0xffffffff is "
        "-1";
constexpr char kUnsigneds[] = "a number from 0 to 4294967295, decimal or 0x hexadecimal";
constexpr char kBools[] = "true or false, on or off, yes or no, 1 or 0";
constexpr char kFloats[] = "a number such as 0.5";
constexpr char kFiniteFloats[] = "a number up to 3.4028235e38, or inf";
constexpr char kHexPairs[] = "pairs of hexadecimal digits";

std::string quoted(const std::string& text) {
    return "'" + text + "'";
}

/** A whole number as it is written: [+-]digits, or [+-]0xdigits. */
struct Whole {
    bool negative;
    bool hexadecimal;
    uint64_t magnitude;  // the largest there is for all that are beyond it

    /** Whether it lies from -lowest to highest. */
    bool within(uint64_t lowest, uint64_t highest) const {
        return magnitude <= (negative ? lowest : highest);
    }
};

Whole wholeFromText(const std::string& text, const char* accepted) {
    const char* at = text.data();
    const char* const end = at + text.size();
    Whole number{false, false, 0};
    if (at != end && (*at == '-' || *at == '+')) number.negative = *at++ == '-';
    number.hexadecimal = end - at > 2 && at[0] == '0' && (at[1] == 'x' || at[1] == 'X');
    if (number.hexadecimal) at += 2;
    const auto [stop, error] =
            std::from_chars(at, end, number.magnitude, number.hexadecimal ? 16 : 10);
    if (error == std::errc::invalid_argument || stop != end) {
        throw TextError(quoted(text) + " is no whole number", accepted);
    }
    if (error == std::errc::result_out_of_range) {
        number.magnitude = std::numeric_limits<uint64_t>::max();
    }
    return number;
}

[[noreturn]] void refuseBeyond(const std::string& text, const char* accepted) {
    throw TextError(quoted(text) + " is beyond 32 bits", accepted);
}

Value listFromText(const std::string& text, const Field& field) {
    const size_t first = text.find_first_not_of(" \t\r\n");
    const bool isJson = first != std::string::npos && text[first] == '[';
    if (isJson || field.record.size() != 1 || field.record[0].type == Type::kList) {
        return valueFromJson(parseJson(text), field);
    }
    List list;
    for (const std::string& part : splitList(text)) {
        list.push_back({valueFromText(part, field.record[0])});
    }
    return Value{std::move(list)};
}

}  // namespace

int32_t intFromText(const std::string& text) {
    constexpr uint64_t kLowest = uint64_t{1} << 31;
    const Whole number = wholeFromText(text, kInts);
    // Hexadecimal is how words are written, of negative numbers too.
    const uint64_t highest =
            number.hexadecimal ? std::numeric_limits<uint32_t>::max() : kLowest - 1;
    if (!number.within(kLowest, highest)) refuseBeyond(text, kInts);
    const auto word = static_cast<uint32_t>(number.magnitude);
    return static_cast<int32_t>(number.negative ? -word : word);
}

uint32_t unsignedFromText(const std::string& text) {
    const Whole number = wholeFromText(text, kUnsigneds);
    if (!number.within(0, std::numeric_limits<uint32_t>::max())) refuseBeyond(text, kUnsigneds);
    return static_cast<uint32_t>(number.magnitude);
}

bool boolFromText(const std::string& text) {
    for (const char* word : {"true", "on", "yes", "1"}) {
        if (text == word) return true;
    }
    for (const char* word : {"false", "off", "no", "0"}) {
        if (text == word) return false;
    }
    throw TextError(quoted(text) + " is neither true nor false", kBools);
}

float floatFromText(const std::string& text) {
    char* end = nullptr;
    const float number = strtof(text.c_str(), &end);
    if (text.empty() || isspace(static_cast<unsigned char>(text[0])) ||
        end != text.c_str() + text.size()) {
        throw TextError(quoted(text) + " is not a number", kFloats);
    }
    const bool saysInfinity = text.find_first_of("iI") != std::string::npos;
    if (std::isinf(number) && !saysInfinity) {
        throw TextError(quoted(text) + " is beyond f32", kFiniteFloats);
    }
    return number;
}

std::u16string utf16FromText(const std::string& text) {
    std::optional<std::u16string> units = utf16FromUtf8(text);
    if (!units) throw TextError("text is not UTF-8", "");
    return std::move(*units);
}

Bytes bytesFromText(const std::string& text) {
    std::optional<Bytes> bytes = bytesFromHex(text);
    if (!bytes) throw TextError("text is not made of hexadecimal pairs (bytes)", kHexPairs);
    return std::move(*bytes);
}

std::vector<std::string> splitList(const std::string& text) {
    std::vector<std::string> parts;
    if (text.empty()) return parts;
    size_t start = 0;
    for (size_t comma; (comma = text.find(',', start)) != std::string::npos; start = comma + 1) {
        parts.push_back(text.substr(start, comma - start));
    }
    parts.push_back(text.substr(start));
    return parts;
}

Value valueFromText(const std::string& text, const Field& field) {
    switch (field.type) {
        case Type::kInt32:
            return Value{intFromText(text)};
        case Type::kBool:
            return Value{boolFromText(text)};
        case Type::kFloat:
            return Value{floatFromText(text)};
        case Type::kString16:
            return Value{utf16FromText(text)};
        case Type::kBytes:
            return Value{bytesFromText(text)};
        case Type::kList:
            return listFromText(text, field);
    }
    throw std::invalid_argument("type is unknown");
}

}  // namespace tarn::values
