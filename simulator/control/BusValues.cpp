#include "simulator/control/BusValues.h"

#include <stdexcept>

#include "values/Utf8.h"
#include "values/Value.h"
#include "values/ValueJson.h"

namespace tarn::simulator::bus {

using values::Bytes;
using values::Value;

namespace {

constexpr char kReplacement[] = "\xEF\xBF\xBD";

sdbus::Variant numberVariant(const Json::Value& json) {
    if (json.isInt()) return sdbus::Variant(static_cast<int32_t>(json.asInt()));
    if (json.isInt64()) return sdbus::Variant(static_cast<int64_t>(json.asInt64()));
    if (json.isUInt64()) return sdbus::Variant(static_cast<uint64_t>(json.asUInt64()));
    return sdbus::Variant(json.asDouble());
}

sdbus::Variant arrayVariant(const Json::Value& json) {
    std::vector<sdbus::Variant> elements;
    for (const Json::Value& element : json) elements.push_back(variantFromJson(element));
    return sdbus::Variant(elements);
}

Json::Value jsonFromArray(const std::vector<sdbus::Variant>& elements) {
    Json::Value json(Json::arrayValue);
    for (const sdbus::Variant& element : elements) json.append(jsonFromVariant(element));
    return json;
}

template <typename Number>
Json::Value jsonFromInteger(const sdbus::Variant& variant) {
    const Number number = variant.get<Number>();
    if constexpr (std::is_signed_v<Number>) return Json::Value(Json::Int64{number});
    return Json::Value(static_cast<Json::UInt64>(number));
}

/** True for a code point that Unicode keeps for internal use; the bus library refuses it. */
bool hasNoncharacter(const std::u16string& text) {
    char16_t before = 0;
    for (const char16_t unit : text) {
        const bool alone = (unit >= 0xfdd0 && unit <= 0xfdef) || unit >= 0xfffe;
        const bool ofAPair = (unit & 0xfffe) == 0xdffe && (before & 0x3f) == 0x3f;
        if (alone || ofAPair) return true;
        before = unit;
    }
    return false;
}

}  // namespace

std::string busText(const std::string& text) {
    std::string carried;
    for (const char c : text) {
        if (c == '\0') {
            carried += kReplacement;
        } else {
            carried += c;
        }
    }
    return carried;
}

const std::string& checkedText(const std::string& text) {
    const auto utf16 = values::utf16FromUtf8(text);
    if (!utf16.has_value()) throw std::invalid_argument("text is not UTF-8");
    if (text.find('\0') != std::string::npos) throw std::invalid_argument("text has a NUL");
    if (hasNoncharacter(*utf16)) {
        throw std::invalid_argument("text has a noncharacter, such as U+FFFF");
    }
    return text;
}

sdbus::Variant variantFromJson(const Json::Value& json) {
    switch (json.type()) {
        case Json::intValue:
        case Json::uintValue:
            return numberVariant(json);
        case Json::realValue:
            return sdbus::Variant(json.asDouble());
        case Json::stringValue:
            return sdbus::Variant(checkedText(busText(json.asString())));
        case Json::booleanValue:
            return sdbus::Variant(json.asBool());
        case Json::arrayValue:
            return arrayVariant(json);
        case Json::objectValue:
            return sdbus::Variant(dictionaryFromJson(json));
        case Json::nullValue:
            break;
    }
    throw std::invalid_argument("null is not a value");
}

Dictionary dictionaryFromJson(const Json::Value& object) {
    Dictionary dictionary;
    for (const std::string& name : object.getMemberNames()) {
        dictionary.emplace(checkedText(busText(name)), variantFromJson(object[name]));
    }
    return dictionary;
}

Json::Value jsonFromVariant(const sdbus::Variant& variant) {
    const std::string type = variant.peekValueType();
    if (type == "b") return Json::Value(variant.get<bool>());
    if (type == "y") return jsonFromInteger<uint8_t>(variant);
    if (type == "n") return jsonFromInteger<int16_t>(variant);
    if (type == "q") return jsonFromInteger<uint16_t>(variant);
    if (type == "i") return jsonFromInteger<int32_t>(variant);
    if (type == "u") return jsonFromInteger<uint32_t>(variant);
    if (type == "x") return jsonFromInteger<int64_t>(variant);
    if (type == "t") return jsonFromInteger<uint64_t>(variant);
    if (type == "d") return Json::Value(variant.get<double>());
    if (type == "s") return Json::Value(variant.get<std::string>());
    if (type == "ay") return toJson(Value{variant.get<Bytes>()});
    if (type == "av") return jsonFromArray(variant.get<std::vector<sdbus::Variant>>());
    if (type == "a{sv}") return jsonFromDictionary(variant.get<Dictionary>());
    if (type == "v") return jsonFromVariant(variant.get<sdbus::Variant>());
    throw std::invalid_argument("a value of D-Bus type '" + type +
                                "' can't be used; accepted: y n q i u x t b d s ay av a{sv}");
}

Json::Value jsonFromDictionary(const Dictionary& dictionary) {
    Json::Value object(Json::objectValue);
    for (const auto& [name, value] : dictionary) object[name] = jsonFromVariant(value);
    return object;
}

}  // namespace tarn::simulator::bus
