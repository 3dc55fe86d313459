#include "simulator/description/PropertyReader.h"

#include "values/JsonError.h"
#include "values/JsonFields.h"
#include "values/Value.h"
#include "values/ValueJson.h"

namespace tarn::simulator {

using protocol::Field;
using protocol::Type;
using values::checkKeys;
using values::checkName;
using values::findMember;
using values::inField;
using values::JsonError;
using values::readText;
using values::Value;
using values::valueFromJson;

namespace {

Type readType(const Json::Value& json) {
    const std::string word = readText(json, "type");
    for (const Type type :
         {Type::kInt32, Type::kBool, Type::kString16, Type::kFloat, Type::kBytes, Type::kList}) {
        if (word == protocol::typeWord(type)) return type;
    }
    throw JsonError(json,
                    "unknown type '" + word + "'; accepted: i32, bool, s16, f32, bytes, list");
}

double readLimit(const Json::Value& json, const char* what, const Field& field) {
    if (field.type != Type::kInt32 && field.type != Type::kFloat) {
        throw JsonError(json, std::string(what) + " needs a property of type i32 or f32");
    }
    const Value value = inField(what, [&] { return valueFromJson(json, field); });
    if (const int32_t* number = std::get_if<int32_t>(&value.data)) return *number;
    return std::get<float>(value.data);
}

void readRange(const Json::Value& json, Property* property) {
    if (const Json::Value* min = findMember(json, "min")) {
        property->min = readLimit(*min, "min", property->field);
    }
    if (const Json::Value* max = findMember(json, "max")) {
        property->max = readLimit(*max, "max", property->field);
        if (property->min && *property->min > *property->max) {
            throw JsonError(*max, "max is below min");
        }
    }
}

void readValues(const Json::Value& json, Property* property) {
    const Type type = property->field.type;
    if (type != Type::kInt32 && type != Type::kFloat && type != Type::kString16) {
        throw JsonError(json, "values need a property of type i32, f32 or s16");
    }
    if (!json.isArray() || json.empty()) {
        throw JsonError(json, "values need an array of at least one value");
    }
    for (const Json::Value& value : json) {
        property->values.push_back(
                inField("values", [&] { return valueFromJson(value, property->field); }));
    }
}

void readInitial(const Json::Value& json, Property* property) {
    property->initial = inField("initial", [&] { return valueFromJson(json, property->field); });
    if (const std::optional<std::string> refusal = property->refusal(property->initial)) {
        throw JsonError(json, "initial is " + *refusal);
    }
}

}  // namespace

Property readProperty(const std::string& name, const Json::Value& json) {
    checkName(json, "a property's name", name);
    checkKeys(json, "property '" + name + "'",
              {"type", "initial", "min", "max", "values", "indexed"});
    Property property;
    property.name = name;
    const Json::Value* type = findMember(json, "type");
    if (type == nullptr) throw JsonError(json, "property '" + name + "' has no type");
    property.field = Field{readType(*type), "", {}};
    readRange(json, &property);
    if (const Json::Value* values = findMember(json, "values")) readValues(*values, &property);
    if (const Json::Value* indexed = findMember(json, "indexed")) {
        if (!indexed->isBool()) throw JsonError(*indexed, "indexed needs true or false");
        property.indexed = indexed->asBool();
    }
    const Json::Value* initial = findMember(json, "initial");
    if (initial == nullptr) throw JsonError(json, "property '" + name + "' has no initial");
    if (property.field.type != Type::kList) readInitial(*initial, &property);
    return property;
}

void readInitialList(const Json::Value& json, Property* property) {
    if (property->field.record.empty()) {
        throw JsonError(json, "no command uses the list '" + property->name +
                                      "', so that nothing says what its records are");
    }
    readInitial(json["initial"], property);
}

}  // namespace tarn::simulator
