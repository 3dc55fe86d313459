#include "values/JsonFields.h"

#include <algorithm>

#include "values/Utf8.h"

namespace tarn::values {

namespace {

std::string listed(std::initializer_list<const char*> words) {
    std::string text;
    for (const char* word : words) text += (text.empty() ? "" : ", ") + std::string(word);
    return text;
}

}  // namespace

void checkKeys(const Json::Value& object, const std::string& what,
               std::initializer_list<const char*> allowed) {
    if (!object.isObject()) throw JsonError(object, what + " needs an object");
    for (auto member = object.begin(); member != object.end(); ++member) {
        const std::string key = member.name();
        if (std::find(allowed.begin(), allowed.end(), key) == allowed.end()) {
            throw JsonError(*member, "unknown key '" + key + "'; accepted: " + listed(allowed));
        }
    }
}

const Json::Value* findMember(const Json::Value& object, const char* key) {
    return object.isMember(key) ? &object[key] : nullptr;
}

int64_t readNumber(const Json::Value& json, const std::string& what, int64_t min, int64_t max) {
    if (json.type() != Json::intValue && json.type() != Json::uintValue) {
        throw JsonError(json, what + " needs a whole number");
    }
    if (!json.isInt64() || json.asInt64() < min || json.asInt64() > max) {
        throw JsonError(json, what + " is not within " + std::to_string(min) + " to " +
                                      std::to_string(max));
    }
    return json.asInt64();
}

std::string readText(const Json::Value& json, const std::string& what) {
    if (!json.isString()) throw JsonError(json, what + " needs a text");
    if (!isUtf8(json.asString())) throw JsonError(json, what + " is not UTF-8");
    return json.asString();
}

void checkName(const Json::Value& at, const std::string& what, const std::string& name) {
    if (name.empty()) throw JsonError(at, what + " is empty");
    if (!isUtf8(name)) throw JsonError(at, what + " is not UTF-8");
}

}  // namespace tarn::values
