#include "registry/ParameterTypes.h"

#include "registry/Arguments.h"
#include "values/ValueText.h"

namespace tarn::registry {

namespace {

void readInt(const std::string& name, const std::string& text, ArgumentValue* value) {
    value->number = parseInt(name, text);
}

void readUnsigned(const std::string& name, const std::string& text, ArgumentValue* value) {
    value->number = parseUnsigned(name, text);
}

void readBool(const std::string& name, const std::string& text, ArgumentValue* value) {
    value->flag = parseBool(name, text);
}

void readFloat(const std::string& name, const std::string& text, ArgumentValue* value) {
    value->real = parseFloat(name, text);
}

void readText(const std::string& name, const std::string& text, ArgumentValue* value) {
    value->text = parseText(name, text);
}

void readBytes(const std::string& name, const std::string& text, ArgumentValue* value) {
    value->bytes = parseBytes(name, text);
}

void readInts(const std::string& name, const std::string& text, ArgumentValue* value) {
    for (const std::string& part : values::splitList(text)) {
        value->numbers.push_back(parseInt(name, part));
    }
}

void readTexts(const std::string& name, const std::string& text, ArgumentValue* value) {
    for (const std::string& part : values::splitList(text)) {
        value->texts.push_back(parseText(name, part));
    }
}

}  // namespace

const ParameterType kIntParameter = {Kind::kInt, "int", readInt};
const ParameterType kUnsignedParameter = {Kind::kUnsigned, "unsigned", readUnsigned};
const ParameterType kBoolParameter = {Kind::kBool, "bool", readBool};
const ParameterType kFloatParameter = {Kind::kFloat, "float", readFloat};
const ParameterType kTextParameter = {Kind::kText, "text", readText};
const ParameterType kBytesParameter = {Kind::kBytes, "hex bytes", readBytes};
const ParameterType kIntsParameter = {Kind::kInts, "int list, separated by commas", readInts};
const ParameterType kTextsParameter = {Kind::kTexts, "text list, separated by commas", readTexts};

android::String16 Parameter<android::String16>::from(const ArgumentValue& value) {
    return android::String16(value.text.data(), value.text.size());
}

}  // namespace tarn::registry
