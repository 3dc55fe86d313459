#include "registry/Results.h"

#include <utils/String8.h>

#include <algorithm>
#include <cstddef>

namespace tarn::registry {

namespace {

Json::Value shown(int value) {
    return value;
}

Json::Value shown(bool value) {
    return value;
}

Json::Value shown(float value) {
    return value;
}

Json::Value shown(const std::string& value) {
    return value;
}

Json::Value shown(const char* value) {
    return value != nullptr ? Json::Value(value) : Json::Value();
}

Json::Value shown(const android::String16& value) {
    return toUtf8(value);
}

Json::Value shown(const Json::Value& value) {
    return value;
}

}  // namespace

template <typename T>
Json::Value SimpleResult<T>::toJson(const T& value) {
    return shown(value);
}

template <typename T>
void SimpleResult<T>::write(const T& value, Answer* answer) {
    answer->json = shown(value);
}

template struct SimpleResult<int>;
template struct SimpleResult<bool>;
template struct SimpleResult<float>;
template struct SimpleResult<std::string>;
template struct SimpleResult<char*>;
template struct SimpleResult<android::String16>;
template struct SimpleResult<Json::Value>;

Json::Value fields(std::initializer_list<std::pair<const char*, Json::Value>> members) {
    Json::Value object(Json::objectValue);
    for (const auto& [name, value] : members) appendField(&object, name, value);
    return object;
}

void appendField(Json::Value* record, const std::string& name, const Json::Value& value) {
    const auto place = static_cast<ptrdiff_t>(record->size());
    Json::Value& field = (*record)[name];
    field = value;
    field.setOffsetStart(place);
}

std::vector<std::string> fieldNames(const Json::Value& record) {
    std::vector<std::string> names = record.getMemberNames();
    std::stable_sort(names.begin(), names.end(),
                     [&record](const std::string& left, const std::string& right) {
                         return record[left].getOffsetStart() < record[right].getOffsetStart();
                     });
    return names;
}

std::string toUtf8(const android::String16& text) {
    const android::String8 utf8(text);
    return std::string(utf8.c_str(), utf8.size());
}

}  // namespace tarn::registry
