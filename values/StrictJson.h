#pragma once

#include <json/value.h>

#include <optional>
#include <string>

namespace tarn::values {

struct SyntaxError {
    int line;
    std::string reason;
};

/**
 * Reads one document without comments, duplicate keys or anything after its end. Returns what is
 * wrong first, nothing if it is fine.
 */
std::optional<SyntaxError> readStrictJson(const std::string& text, Json::Value* root);

/** Reads one JSON document and nothing but that; throws std::invalid_argument. */
Json::Value parseJson(const std::string& text);

}  // namespace tarn::values
