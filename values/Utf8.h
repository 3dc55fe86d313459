#pragma once

#include <optional>
#include <string>

namespace tarn::values {

bool isUtf8(const std::string& text);

/** The text as UTF-16; nothing if it is not well-formed UTF-8. */
std::optional<std::u16string> utf16FromUtf8(const std::string& text);

/** The text as UTF-8; a surrogate without its other half becomes U+FFFD. */
std::string utf8FromUtf16(const std::u16string& text);

}  // namespace tarn::values
