#include "values/Hex.h"

namespace tarn::values {

namespace {

std::optional<uint8_t> hexDigit(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
    return std::nullopt;
}

void append(std::string* text, uint8_t byte) {
    constexpr char kDigits[] = "0123456789abcdef";
    *text += kDigits[byte >> 4];
    *text += kDigits[byte & 0xF];
}

}  // namespace

std::string hexFromBytes(const Bytes& bytes) {
    std::string text;
    for (const uint8_t byte : bytes) append(&text, byte);
    return text;
}

std::string hexWords(const Bytes& bytes) {
    constexpr size_t kWord = 4;
    std::string text;
    for (size_t i = 0; i < bytes.size(); i++) {
        if (i > 0 && i % kWord == 0) text += ' ';
        append(&text, bytes[i]);
    }
    return text;
}

std::optional<Bytes> bytesFromHex(const std::string& text) {
    Bytes digits;
    for (const char c : text) {
        if (c == ' ') continue;
        const std::optional<uint8_t> digit = hexDigit(c);
        if (!digit) return std::nullopt;
        digits.push_back(*digit);
    }
    if (digits.size() % 2 != 0) return std::nullopt;
    Bytes bytes;
    for (size_t i = 0; i < digits.size(); i += 2) {
        bytes.push_back(static_cast<uint8_t>(digits[i] << 4 | digits[i + 1]));
    }
    return bytes;
}

}  // namespace tarn::values
