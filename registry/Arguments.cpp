#include "registry/Arguments.h"

#include "values/ValueText.h"

namespace tarn::registry {

namespace {

/** What read() makes of the text; a refusal names the argument and tells what is accepted. */
template <typename Read>
auto inArgument(const std::string& name, const std::string& text, const Read& read) try {
    return read(text);
} catch (const values::TextError& error) {
    if (error.accepted().empty()) throw BadArgument(name + ": the " + error.what());
    throw BadArgument(name + ": \"" + text + "\" can't be used; accepted: " + error.accepted());
}

}  // namespace

int32_t parseInt(const std::string& name, const std::string& text) {
    return inArgument(name, text, values::intFromText);
}

uint32_t parseUnsigned(const std::string& name, const std::string& text) {
    return inArgument(name, text, values::unsignedFromText);
}

bool parseBool(const std::string& name, const std::string& text) {
    return inArgument(name, text, values::boolFromText);
}

float parseFloat(const std::string& name, const std::string& text) {
    return inArgument(name, text, values::floatFromText);
}

std::string parseText(const std::string& name, const std::string& text) {
    inArgument(name, text, values::utf16FromText);
    return text;
}

std::vector<uint8_t> parseBytes(const std::string& name, const std::string& text) {
    return inArgument(name, text, values::bytesFromText);
}

values::Value parseValue(const std::string& name, const std::string& text,
                         const protocol::Field& field) {
    return inArgument(name, text, [&field](const std::string& typed) {
        return values::valueFromText(typed, field);
    });
}

}  // namespace tarn::registry
