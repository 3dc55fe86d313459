#include "values/Value.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarn::values {

using protocol::Field;
using protocol::Layout;
using protocol::Type;

namespace {

Type wireType(Type type) {
    return type == Type::kBool ? Type::kInt32 : type;
}

}  // namespace

bool looksAlike(const Field& left, const Field& right) {
    return wireType(left.type) == wireType(right.type) && looksAlike(left.record, right.record);
}

bool looksAlike(const Layout& left, const Layout& right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const Field& a, const Field& b) { return looksAlike(a, b); });
}

Value converted(Value value, Type type) {
    if (const int32_t* word = std::get_if<int32_t>(&value.data)) {
        if (type == Type::kBool) return Value{*word != 0};
    } else if (const bool* on = std::get_if<bool>(&value.data)) {
        if (type == Type::kInt32) return Value{int32_t{*on}};
    }
    return value;
}

int32_t statusWord(const Value& value) {
    return std::get<int32_t>(converted(value, Type::kInt32).data);
}

bool isFinite(const Value& value) {
    if (const float* number = std::get_if<float>(&value.data)) return std::isfinite(*number);
    const List* list = std::get_if<List>(&value.data);
    if (list == nullptr) return true;
    return std::all_of(list->begin(), list->end(), [](const Record& record) {
        return std::all_of(record.begin(), record.end(), isFinite);
    });
}

std::string describe(const Field& field) {
    if (field.type != Type::kList) return protocol::typeWord(field.type);
    std::string text = "[";
    for (const Field& part : field.record) {
        if (text.size() > 1) text += ", ";
        text += describe(part);
        if (!part.name.empty()) text += " " + part.name;
    }
    return text + "]";
}

}  // namespace tarn::values
