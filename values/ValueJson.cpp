#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>

#include "values/StrictJson.h"
#include "values/Utf.h"
#include "values/Value.h"

namespace tarn::simulator {

using protocol::Field;
using protocol::Type;

namespace {

bool isWholeNumber(const Json::Value& json) {
    return json.type() == Json::intValue || json.type() == Json::uintValue;
}

std::optional<uint8_t> hexDigit(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
    return std::nullopt;
}

std::optional<Bytes> bytesFromHex(const std::string& text) {
    Bytes digits;
    for (const char c : text) {
        if (c == ' ') continue;
        const std::optional<uint8_t> digit = hexDigit(c);
        if (!digit) return std::nullopt;
        digits.push_back(*digit);
    }
    if (digits.size() % 2 != 0) return std::nullopt;
    Bytes bytes;
    for (size_t i = 0; i < digits.size(); i += 2) {
        bytes.push_back(static_cast<uint8_t>(digits[i] << 4 | digits[i + 1]));
    }
    return bytes;
}

std::string hexFromBytes(const Bytes& bytes) {
    constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    for (const uint8_t byte : bytes) {
        text += kDigits[byte >> 4];
        text += kDigits[byte & 0xF];
    }
    return text;
}

Value intFromJson(const Json::Value& json) {
    if (!isWholeNumber(json)) throw JsonError(json, "needs a whole number (i32)");
    if (!json.isInt()) throw JsonError(json, "number is beyond 32 bits");
    return Value{int32_t{json.asInt()}};
}

Value boolFromJson(const Json::Value& json) {
    if (!json.isBool()) throw JsonError(json, "needs true or false (bool)");
    return Value{json.asBool()};
}

Value floatFromJson(const Json::Value& json) {
    if (!isWholeNumber(json) && !json.isDouble()) throw JsonError(json, "needs a number (f32)");
    const auto number = static_cast<float>(json.asDouble());
    if (!std::isfinite(number)) throw JsonError(json, "number is beyond f32");
    return Value{number};
}

Value textFromJson(const Json::Value& json) {
    if (!json.isString()) throw JsonError(json, "needs a text (s16)");
    std::optional<std::u16string> text = utf16FromUtf8(json.asString());
    if (!text) throw JsonError(json, "text is not UTF-8");
    return Value{std::move(*text)};
}

Value bytesFromJson(const Json::Value& json) {
    if (json.isString()) {
        std::optional<Bytes> bytes = bytesFromHex(json.asString());
        if (!bytes) throw JsonError(json, "text is not made of hexadecimal pairs (bytes)");
        return Value{std::move(*bytes)};
    }
    if (!json.isArray()) throw JsonError(json, "needs an array of numbers or a text (bytes)");
    Bytes bytes;
    for (const Json::Value& byte : json) {
        if (!isWholeNumber(byte) || !byte.isUInt() || byte.asUInt() > 0xFF) {
            throw JsonError(byte, "needs a number from 0 to 255 (bytes)");
        }
        bytes.push_back(static_cast<uint8_t>(byte.asUInt()));
    }
    return Value{std::move(bytes)};
}

Record recordFromJson(const Json::Value& json, const Field& list) {
    if (!json.isArray()) {
        if (list.record.size() != 1) {
            throw JsonError(json, "needs an array for each record " + describe(list));
        }
        return Record{valueFromJson(json, list.record[0])};
    }
    if (json.size() != list.record.size()) {
        throw JsonError(json, "record has " + std::to_string(json.size()) + " fields, not the " +
                                      std::to_string(list.record.size()) + " of " + describe(list));
    }
    Record record;
    for (Json::ArrayIndex i = 0; i < json.size(); i++) {
        record.push_back(valueFromJson(json[i], list.record[i]));
    }
    return record;
}

Value listFromJson(const Json::Value& json, const Field& field) {
    if (!json.isArray()) throw JsonError(json, "needs an array of records " + describe(field));
    List list;
    for (const Json::Value& record : json) list.push_back(recordFromJson(record, field));
    return Value{std::move(list)};
}

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

/** The shortest decimal number that reads back as the same float. */
double shortest(float number) {
    if (!std::isfinite(number)) return number;
    char text[32];
    *std::to_chars(text, text + sizeof(text) - 1, number).ptr = '\0';
    return strtod(text, nullptr);
}

struct JsonWriter {
    Json::Value operator()(int32_t number) const { return Json::Value(number); }
    Json::Value operator()(bool on) const { return Json::Value(on); }
    Json::Value operator()(float number) const { return Json::Value(shortest(number)); }
    Json::Value operator()(const std::u16string& text) const {
        return Json::Value(utf8FromUtf16(text));
    }
    Json::Value operator()(const Bytes& bytes) const { return Json::Value(hexFromBytes(bytes)); }
    Json::Value operator()(const List& list) const {
        Json::Value records(Json::arrayValue);
        for (const Record& record : list) {
            Json::Value fields(Json::arrayValue);
            for (const Value& value : record) fields.append(toJson(value));
            records.append(fields);
        }
        return records;
    }
};

}  // namespace

Value valueFromJson(const Json::Value& json, const Field& field) {
    switch (field.type) {
        case Type::kInt32:
            return intFromJson(json);
        case Type::kBool:
            return boolFromJson(json);
        case Type::kFloat:
            return floatFromJson(json);
        case Type::kString16:
            return textFromJson(json);
        case Type::kBytes:
            return bytesFromJson(json);
        case Type::kList:
            return listFromJson(json, field);
    }
    throw JsonError(json, "type is unknown");
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
        case Type::kBytes:
            return valueFromJson(Json::Value(text), field);
        case Type::kList:
            return valueFromJson(parseJson(text), field);
    }
    throw std::invalid_argument("type is unknown");
}

Json::Value parseJson(const std::string& text) {
    Json::Value root;
    if (const std::optional<SyntaxError> error = readStrictJson(text, &root)) {
        throw std::invalid_argument("not JSON: " + error->reason);
    }
    return root;
}

Json::Value toJson(const Value& value) {
    return std::visit(JsonWriter(), value.data);
}

}  // namespace tarn::simulator
