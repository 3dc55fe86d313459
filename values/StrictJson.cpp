#include "values/StrictJson.h"

#include <json/reader.h>

#include <cstdio>
#include <memory>
#include <sstream>
#include <stdexcept>

namespace tarn::values {

namespace {

constexpr int kMaxDepth = 64;

/** Takes the reader's message apart: "* Line 3, Column 2", then its reason on a line of its own. */
SyntaxError firstError(const std::string& message) {
    SyntaxError error{1, "is not JSON"};
    std::istringstream lines(message);
    std::string text;
    std::getline(lines, text);
    sscanf(text.c_str(), "* Line %d", &error.line);
    std::getline(lines, text);
    const size_t start = text.find_first_not_of(' ');
    if (start != std::string::npos) error.reason = text.substr(start);
    return error;
}

}  // namespace

std::optional<SyntaxError> readStrictJson(const std::string& text, Json::Value* root) {
    Json::CharReaderBuilder builder;
    Json::CharReaderBuilder::strictMode(&builder.settings_);
    // The strict mode's own demand for an object or array would refuse a plain value.
    builder["strictRoot"] = false;
    builder["stackLimit"] = kMaxDepth;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    std::string message;
    try {
        if (reader->parse(text.data(), text.data() + text.size(), root, &message))
            return std::nullopt;
    } catch (const Json::Exception& e) {
        return SyntaxError{1, e.what()};
    }
    return firstError(message);
}

Json::Value parseJson(const std::string& text) {
    Json::Value root;
    if (const std::optional<SyntaxError> error = readStrictJson(text, &root)) {
        throw std::invalid_argument("not JSON: " + error->reason);
    }
    return root;
}

}  // namespace tarn::values
