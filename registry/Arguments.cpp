#include "registry/Arguments.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <limits>

namespace tarn::registry {

namespace {

[[noreturn]] void refuse(const std::string& name, const std::string& text, const char* accepted) {
    throw BadArgument(name + ": \"" + text + "\" can't be used; accepted: " + accepted);
}

bool isHex(const std::string& text) {
    const size_t digits = text.find_first_not_of("+-");
    return digits != std::string::npos && text.size() > digits + 2 && text[digits] == '0' &&
           (text[digits + 1] == 'x' || text[digits + 1] == 'X');
}

bool readInteger(const std::string& text, int64_t* value) {
    if (text.empty() || isspace(static_cast<unsigned char>(text[0]))) return false;
    char* end = nullptr;
    errno = 0;
    *value = strtoll(text.c_str(), &end, isHex(text) ? 16 : 10);
    return errno == 0 && end == text.c_str() + text.size();
}

/** The bytes of the UTF-8 character at the front; 0 if there is none. */
size_t characterSize(const unsigned char* bytes, size_t size) {
    struct Form {
        unsigned char mask, mark;
        uint32_t least;
    };
    constexpr Form kForms[] = {
            {0x80, 0x00, 0}, {0xe0, 0xc0, 0x80}, {0xf0, 0xe0, 0x800}, {0xf8, 0xf0, 0x10000}};
    for (size_t length = 1; length <= std::size(kForms); length++) {
        const Form& form = kForms[length - 1];
        if ((bytes[0] & form.mask) != form.mark) continue;
        if (length > size) return 0;
        uint32_t character = bytes[0] & ~form.mask & 0xff;
        for (size_t i = 1; i < length; i++) {
            if ((bytes[i] & 0xc0) != 0x80) return 0;
            character = character << 6 | (bytes[i] & 0x3f);
        }
        const bool surrogate = character >= 0xd800 && character < 0xe000;
        return character >= form.least && character <= 0x10ffff && !surrogate ? length : 0;
    }
    return 0;
}

bool isUtf8(const std::string& text) {
    const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
    for (size_t i = 0; i < text.size();) {
        const size_t size = characterSize(bytes + i, text.size() - i);
        if (size == 0) return false;
        i += size;
    }
    return true;
}

int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

}  // namespace

int32_t parseInt(const std::string& name, const std::string& text) {
    int64_t value = 0;
    const bool number = readInteger(text, &value);
    // Hexadecimal is how words are written, of negative numbers too.
    const int64_t largest = isHex(text) ? std::numeric_limits<uint32_t>::max()
                                        : std::numeric_limits<int32_t>::max();
    if (!number || value < std::numeric_limits<int32_t>::min() || value > largest) {
        refuse(name, text,
               "a number from -2147483648 to 2147483647, decimal or 0x hexadecimal, where "
               "0xffffffff "
               "is -1");
    }
    return static_cast<int32_t>(value);
}

uint32_t parseUnsigned(const std::string& name, const std::string& text) {
    int64_t value = 0;
    if (!readInteger(text, &value) || value < 0 || value > std::numeric_limits<uint32_t>::max()) {
        refuse(name, text, "a number from 0 to 4294967295, decimal or 0x hexadecimal");
    }
    return static_cast<uint32_t>(value);
}

bool parseBool(const std::string& name, const std::string& text) {
    for (const char* word : {"true", "on", "yes", "1"}) {
        if (text == word) return true;
    }
    for (const char* word : {"false", "off", "no", "0"}) {
        if (text == word) return false;
    }
    refuse(name, text, "true or false, on or off, yes or no, 1 or 0");
}

float parseFloat(const std::string& name, const std::string& text) {
    char* end = nullptr;
    const float value = strtof(text.c_str(), &end);
    if (text.empty() || isspace(static_cast<unsigned char>(text[0])) ||
        end != text.c_str() + text.size()) {
        refuse(name, text, "a number such as 0.5");
    }
    const bool saysInfinity = text.find_first_of("iI") != std::string::npos;
    if (std::isinf(value) && !saysInfinity) {
        refuse(name, text, "a number up to 3.4028235e38, or inf");
    }
    return value;
}

std::string parseText(const std::string& name, const std::string& text) {
    if (!isUtf8(text)) throw BadArgument(name + ": the text is not UTF-8");
    return text;
}

std::vector<uint8_t> parseBytes(const std::string& name, const std::string& text) {
    std::vector<uint8_t> bytes;
    int high = -1;
    for (const char c : text) {
        if (c == ' ' && high < 0) continue;
        const int digit = hexDigit(c);
        if (digit < 0) refuse(name, text, "pairs of hexadecimal digits");
        if (high < 0) {
            high = digit;
        } else {
            bytes.push_back(static_cast<uint8_t>(high << 4 | digit));
            high = -1;
        }
    }
    if (high >= 0) refuse(name, text, "pairs of hexadecimal digits");
    return bytes;
}

std::vector<std::string> splitList(const std::string& text) {
    std::vector<std::string> parts;
    if (text.empty()) return parts;
    size_t start = 0;
    for (size_t comma; (comma = text.find(',', start)) != std::string::npos; start = comma + 1) {
        parts.push_back(text.substr(start, comma - start));
    }
    parts.push_back(text.substr(start));
    return parts;
}

}  // namespace tarn::registry
