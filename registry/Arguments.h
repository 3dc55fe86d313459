#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "protocol/Layout.h"
#include "values/Value.h"

namespace tarn::registry {

/** An argument on the command line that can't be used; says which, why and what is accepted. */
class BadArgument : public std::invalid_argument {
  public:
    using std::invalid_argument::invalid_argument;
};

// Reading one argument of the command line as values/README.md tells. Each function throws
// BadArgument, which names the argument, quotes the text and tells what is accepted.

int32_t parseInt(const std::string& name, const std::string& text);

uint32_t parseUnsigned(const std::string& name, const std::string& text);

bool parseBool(const std::string& name, const std::string& text);

float parseFloat(const std::string& name, const std::string& text);

/** The text, if it is UTF-8: the library's texts can't hold anything else. */
std::string parseText(const std::string& name, const std::string& text);

std::vector<uint8_t> parseBytes(const std::string& name, const std::string& text);

/** A value of the field's type. */
values::Value parseValue(const std::string& name, const std::string& text,
                         const protocol::Field& field);

}  // namespace tarn::registry
