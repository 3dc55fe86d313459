#include "registry/Answer.h"

#include <json/value.h>

#include "registry/Results.h"

namespace tarn::registry {

Answer::Answer(const Json::Value& json) : mJson(std::make_unique<Json::Value>(json)) {}

Answer::Answer(int value) : Answer(Json::Value(value)) {}

Answer::Answer(bool value) : Answer(Json::Value(value)) {}

Answer::Answer(float value) : Answer(Json::Value(value)) {}

Answer::Answer(const std::string& text) : Answer(Json::Value(text)) {}

Answer::Answer(const android::String16& text) : Answer(toUtf8(text)) {}

Answer::Answer(const char* text) : Answer(text != nullptr ? Json::Value(text) : Json::Value()) {}

Answer::Answer(Answer&& other) noexcept = default;

Answer::~Answer() = default;

Answer Answer::emptyRecord() {
    return Answer(Json::Value(Json::objectValue));
}

Answer Answer::emptyList() {
    return Answer(Json::Value(Json::arrayValue));
}

void Answer::add(const char* name, const Answer& field) {
    appendField(mJson.get(), name, *field.mJson);
}

void Answer::append(const Answer& element) {
    mJson->append(*element.mJson);
}

}  // namespace tarn::registry
