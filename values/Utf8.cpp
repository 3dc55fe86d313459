#include "values/Utf8.h"

#include <cstdint>

namespace tarn::values {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kFirstSupplementary = 0x10000;
constexpr char32_t kLastCodePoint = 0x10FFFF;

bool isSurrogate(char32_t point) {
    return point >= 0xD800 && point <= 0xDFFF;
}

bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

struct Lead {
    int continuations;
    char32_t bits;
    char32_t smallest;  // what is below could be written shorter
};

std::optional<Lead> readLead(uint8_t byte) {
    if (byte < 0x80) return Lead{0, byte, 0};
    if ((byte & 0xE0) == 0xC0) return Lead{1, byte & 0x1FU, 0x80};
    if ((byte & 0xF0) == 0xE0) return Lead{2, byte & 0x0FU, 0x800};
    if ((byte & 0xF8) == 0xF0) return Lead{3, byte & 0x07U, kFirstSupplementary};
    return std::nullopt;
}

void append(std::u16string* text, char32_t point) {
    if (point < kFirstSupplementary) {
        text->push_back(static_cast<char16_t>(point));
        return;
    }
    point -= kFirstSupplementary;
    text->push_back(static_cast<char16_t>(0xD800 + (point >> 10)));
    text->push_back(static_cast<char16_t>(0xDC00 + (point & 0x3FF)));
}

void append(std::string* text, char32_t point) {
    const auto put = [text](char32_t byte) { text->push_back(static_cast<char>(byte)); };
    const auto putTail = [&put](char32_t bits) { put(0x80 | (bits & 0x3F)); };
    if (point < 0x80) {
        put(point);
    } else if (point < 0x800) {
        put(0xC0 | point >> 6);
        putTail(point);
    } else if (point < kFirstSupplementary) {
        put(0xE0 | point >> 12);
        putTail(point >> 6);
        putTail(point);
    } else {
        put(0xF0 | point >> 18);
        putTail(point >> 12);
        putTail(point >> 6);
        putTail(point);
    }
}

}  // namespace

bool isUtf8(const std::string& text) {
    return utf16FromUtf8(text).has_value();
}

std::optional<std::u16string> utf16FromUtf8(const std::string& text) {
    std::u16string units;
    size_t at = 0;
    while (at < text.size()) {
        const std::optional<Lead> lead = readLead(static_cast<uint8_t>(text[at++]));
        if (!lead) return std::nullopt;
        char32_t point = lead->bits;
        for (int i = 0; i < lead->continuations; i++) {
            if (at == text.size()) return std::nullopt;
            const auto byte = static_cast<uint8_t>(text[at++]);
            if ((byte & 0xC0) != 0x80) return std::nullopt;
            point = point << 6 | (byte & 0x3FU);
        }
        if (point < lead->smallest || point > kLastCodePoint || isSurrogate(point)) {
            return std::nullopt;
        }
        append(&units, point);
    }
    return units;
}

std::string utf8FromUtf16(const std::u16string& text) {
    std::string bytes;
    for (size_t at = 0; at < text.size(); at++) {
        char32_t point = text[at];
        if (isHighSurrogate(point) && at + 1 < text.size() && isLowSurrogate(text[at + 1])) {
            point = kFirstSupplementary + ((point - 0xD800) << 10) + (text[++at] - 0xDC00U);
        } else if (isSurrogate(point)) {
            point = kReplacement;
        }
        append(&bytes, point);
    }
    return bytes;
}

}  // namespace tarn::values
