#pragma once

#include <json/value.h>
#include <utils/String16.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "registry/ResultTypes.h"

namespace tarn::registry {

/** What a call gave. */
struct Answer {
    Json::Value json;
};

template <typename T>
Json::Value toJson(const T& value) {
    return ResultType<T>::toJson(value);
}

/**
 * A record; specialised next to its controller:
 *
 *     template <>
 *     struct ResultType<android::SoundScreenAngle> : RecordResult<android::SoundScreenAngle> {
 *         static constexpr const char* kWords = "angles";
 *         static Json::Value toJson(const android::SoundScreenAngle& angle) {
 *             return fields({{"first", angle.first}, {"second", angle.second}});
 *         }
 *     };
 */
template <typename T>
struct RecordResult {
    static constexpr Kind kKind = Kind::kRecord;
    static void write(const T& value, Answer* answer) {
        answer->json = ResultType<T>::toJson(value);
    }
};

template <typename T>
Json::Value ResultType<T, std::enable_if_t<std::is_enum_v<T>>>::toJson(T value) {
    return static_cast<Json::Int>(value);
}

template <typename T>
Json::Value ResultType<std::vector<T>>::toJson(const std::vector<T>& list) {
    Json::Value array(Json::arrayValue);
    for (const T& element : list) array.append(ResultType<T>::toJson(element));
    return array;
}

template <typename T>
void ResultType<std::vector<T>>::write(const std::vector<T>& list, Answer* answer) {
    answer->json = toJson(list);
}

/**
 * Adds a field behind those that a record has. An object sorts its members by name; each one's
 * offset, which a parsed document's members have too, keeps its place among them.
 */
void appendField(Json::Value* record, const std::string& name, const Json::Value& value);

/** A record's names in the order in which its fields stand. */
std::vector<std::string> fieldNames(const Json::Value& record);

/** A JSON object of named values, which keeps their order. */
Json::Value fields(std::initializer_list<std::pair<const char*, Json::Value>> members);

std::string toUtf8(const android::String16& text);

}  // namespace tarn::registry
