#pragma once

#include <json/value.h>

#include <optional>
#include <string>

namespace tarn::simulator {

struct SyntaxError {
    int line;
    std::string reason;
};

/**
 * Reads one document without comments, duplicate keys or anything after its end. Returns what is
 * wrong first, nothing if it is fine.
 */
std::optional<SyntaxError> readStrictJson(const std::string& text, Json::Value* root);

}  // namespace tarn::simulator
