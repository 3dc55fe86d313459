#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarn::registry {

/** An argument on the command line that can't be used; says which, why and what is accepted. */
class BadArgument : public std::invalid_argument {
  public:
    using std::invalid_argument::invalid_argument;
};

// Reading one argument of the command line. Each function throws BadArgument, which names the
// argument, quotes the text and tells what is accepted.

/** Decimal within int32; or 0x hexadecimal, which may be a negative number's word: 0xffffffff is
 * -1. */
int32_t parseInt(const std::string& name, const std::string& text);

/** As parseInt, within uint32. */
uint32_t parseUnsigned(const std::string& name, const std::string& text);

/** true/false, on/off, yes/no, 1/0. */
bool parseBool(const std::string& name, const std::string& text);

float parseFloat(const std::string& name, const std::string& text);

/** The text, if it is UTF-8: the library's texts can't hold anything else. */
std::string parseText(const std::string& name, const std::string& text);

/** Pairs of hexadecimal digits; blanks between them are ignored. */
std::vector<uint8_t> parseBytes(const std::string& name, const std::string& text);

/** The parts between commas; an empty text is an empty list. */
std::vector<std::string> splitList(const std::string& text);

}  // namespace tarn::registry
