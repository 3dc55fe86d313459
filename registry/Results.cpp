#include "registry/Results.h"

#include <utils/String8.h>

#include <algorithm>
#include <cstddef>

namespace tarn::registry {

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
