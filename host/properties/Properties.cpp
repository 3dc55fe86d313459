#include <cutils/properties.h>
#include <errno.h>
#include <inttypes.h>
#include <string.h>

#include <algorithm>
#include <optional>
#include <string>

#include "PropertyFile.h"

using tarn::host::PropertyMap;

namespace {

int copyValue(const char* text, char* value) {
    const size_t length = strnlen(text, PROPERTY_VALUE_MAX - 1);
    memcpy(value, text, length);
    value[length] = '\0';
    return static_cast<int>(length);
}

std::string findValue(const char* key) {
    if (key == nullptr) return {};
    const std::optional<PropertyMap> properties =
            tarn::host::readProperties(tarn::host::propertyFilePath());
    if (!properties) return {};
    const auto found = properties->find(key);
    return found != properties->end() ? found->second : std::string();
}

intmax_t getInteger(const char* key, intmax_t lowest, intmax_t highest, intmax_t defaultValue) {
    char text[PROPERTY_VALUE_MAX];
    if (property_get(key, text, "") <= 0) return defaultValue;
    const int savedErrno = errno;
    errno = 0;
    char* end = nullptr;
    const intmax_t number = strtoimax(text, &end, 0);
    const bool overflow = errno == ERANGE;
    errno = savedErrno;
    if (end == text || overflow || number < lowest || number > highest) return defaultValue;
    return number;
}

}  // namespace

int property_get(const char* key, char* value, const char* default_value) {
    const std::string found = findValue(key);
    if (!found.empty() || default_value == nullptr) return copyValue(found.c_str(), value);
    return copyValue(default_value, value);
}

int8_t property_get_bool(const char* key, int8_t default_value) {
    char text[PROPERTY_VALUE_MAX];
    property_get(key, text, "");
    const auto isText = [&text](const char* word) { return strcmp(text, word) == 0; };
    constexpr const char* kTrue[] = {"1", "true", "y", "yes", "on"};
    constexpr const char* kFalse[] = {"0", "false", "n", "no", "off"};
    if (std::any_of(std::begin(kTrue), std::end(kTrue), isText)) return 1;
    if (std::any_of(std::begin(kFalse), std::end(kFalse), isText)) return 0;
    return default_value;
}

int64_t property_get_int64(const char* key, int64_t default_value) {
    return getInteger(key, INT64_MIN, INT64_MAX, default_value);
}

int32_t property_get_int32(const char* key, int32_t default_value) {
    return static_cast<int32_t>(getInteger(key, INT32_MIN, INT32_MAX, default_value));
}

int property_set(const char* key, const char* value) {
    const std::string name = key != nullptr ? key : "";
    const std::string text = value != nullptr ? value : "";
    if (!tarn::host::isLegalPropertyName(name) || !tarn::host::isLegalPropertyValue(text)) {
        return -1;
    }
    return tarn::host::storeProperty(tarn::host::propertyFilePath(), name, text) ? 0 : -1;
}

int property_list(void (*propfn)(const char* key, const char* value, void* cookie), void* cookie) {
    const std::optional<PropertyMap> properties =
            tarn::host::readProperties(tarn::host::propertyFilePath());
    if (propfn == nullptr || !properties) return -1;
    for (const auto& [name, value] : *properties) propfn(name.c_str(), value.c_str(), cookie);
    return 0;
}
