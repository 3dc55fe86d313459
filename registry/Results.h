#pragma once

#include <json/value.h>
#include <utils/String16.h>

#include <initializer_list>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace tarn::registry {

/**
 * How a result of type T is shown: kType for people, toJson() for the value. Records specialise
 * it next to their controller:
 *
 *     template <>
 *     struct ResultWriter<android::SoundScreenAngle> {
 *         static constexpr const char* kType = "angles";
 *         static Json::Value toJson(const android::SoundScreenAngle& angle) {
 *             return fields({{"first", angle.first}, {"second", angle.second}});
 *         }
 *     };
 */
template <typename T, typename Enable = void>
struct ResultWriter;

template <typename T>
Json::Value toJson(const T& value) {
    return ResultWriter<T>::toJson(value);
}

/**
 * Adds a field behind those that a record has. An object sorts its members by name; each one's
 * offset, which a parsed document's members have too, keeps its place among them.
 */
void appendField(Json::Value* record, const std::string& name, const Json::Value& value);

/** A record's names in the order in which its fields stand. */
std::vector<std::string> fieldNames(const Json::Value& record);

/** A JSON object of named values, which keeps their order. */
inline Json::Value fields(std::initializer_list<std::pair<const char*, Json::Value>> members) {
    Json::Value object(Json::objectValue);
    for (const auto& [name, value] : members) appendField(&object, name, value);
    return object;
}

std::string toUtf8(const android::String16& text);

template <>
struct ResultWriter<int> {
    static constexpr const char* kType = "int";
    static Json::Value toJson(int value) { return value; }
};

template <>
struct ResultWriter<bool> {
    static constexpr const char* kType = "bool";
    static Json::Value toJson(bool value) { return value; }
};

template <>
struct ResultWriter<float> {
    static constexpr const char* kType = "float";
    static Json::Value toJson(float value) { return value; }
};

template <>
struct ResultWriter<std::string> {
    static constexpr const char* kType = "text";
    static Json::Value toJson(const std::string& value) { return value; }
};

template <>
struct ResultWriter<char*> {
    static constexpr const char* kType = "text";
    static Json::Value toJson(const char* value) {
        return value ? Json::Value(value) : Json::Value();
    }
};

template <>
struct ResultWriter<android::String16> {
    static constexpr const char* kType = "text";
    static Json::Value toJson(const android::String16& value) { return toUtf8(value); }
};

/** A result that an adapted method has put together itself; see Builder::adapted(). */
template <>
struct ResultWriter<Json::Value> {
    static constexpr const char* kType = "record";
    static Json::Value toJson(const Json::Value& value) { return value; }
};

template <typename T>
struct ResultWriter<T, std::enable_if_t<std::is_enum_v<T>>> {
    static constexpr const char* kType = "int";
    static Json::Value toJson(T value) { return static_cast<Json::Int>(value); }
};

template <typename T>
struct ResultWriter<std::vector<T>> {
    static inline const std::string kType = std::string("list of ") + ResultWriter<T>::kType;
    static Json::Value toJson(const std::vector<T>& list) {
        Json::Value array(Json::arrayValue);
        for (const T& element : list) array.append(ResultWriter<T>::toJson(element));
        return array;
    }
};

}  // namespace tarn::registry
