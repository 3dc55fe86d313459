#include "values/ValueJson.h"

#include <cmath>
#include <optional>
#include <utility>

#include "values/Hex.h"
#include "values/JsonError.h"
#include "values/ShortestFloat.h"
#include "values/Utf8.h"

namespace tarn::values {

using protocol::Field;
using protocol::Type;

namespace {

bool isWholeNumber(const Json::Value& json) {
    return json.type() == Json::intValue || json.type() == Json::uintValue;
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

struct JsonWriter {
    Json::Value operator()(int32_t number) const { return Json::Value(number); }
    Json::Value operator()(bool on) const { return Json::Value(on); }
    Json::Value operator()(float number) const { return Json::Value(shortestOf(number)); }
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

Json::Value toJson(const Value& value) {
    return std::visit(JsonWriter(), value.data);
}

}  // namespace tarn::values
