#include "simulator/description/Property.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include "values/Utf8.h"
#include "values/Value.h"
#include "values/ValueText.h"

namespace tarn::simulator {

using values::Record;
using values::utf8FromUtf16;
using values::Value;
using values::valueFromText;

namespace {

std::string number(double value) {
    std::ostringstream text;
    text.precision(10);
    text << value;
    return text.str();
}

std::optional<double> asNumber(const Value& value) {
    if (const int32_t* word = std::get_if<int32_t>(&value.data)) return *word;
    if (const float* real = std::get_if<float>(&value.data)) return *real;
    return std::nullopt;
}

/** A text with what separates the parts of an index escaped. */
std::string escaped(const std::string& text) {
    std::string result;
    for (const char c : text) {
        if (c == ',' || c == '\\') result += '\\';
        result += c;
    }
    return result;
}

std::vector<std::string> splitIndex(const std::string& text) {
    std::vector<std::string> parts(1);
    for (size_t i = 0; i < text.size(); i++) {
        if (text[i] == ',') {
            parts.emplace_back();
        } else {
            if (text[i] == '\\' && i + 1 < text.size()) i++;
            parts.back() += text[i];
        }
    }
    return parts;
}

}  // namespace

std::optional<std::string> Property::refusal(const Value& value) const {
    if (const std::optional<double> given = asNumber(value)) {
        // Negated so that a NaN is outside of every limit.
        if (min && !(*given >= *min)) return "below the smallest value " + number(*min);
        if (max && !(*given <= *max)) return "above the largest value " + number(*max);
    }
    if (!values.empty() && std::find(values.begin(), values.end(), value) == values.end()) {
        return "not one of its values";
    }
    return std::nullopt;
}

std::string indexText(const Record& index) {
    std::string text;
    for (const Value& part : index) {
        if (&part != &index.front()) text += ",";
        if (const auto* word = std::get_if<std::u16string>(&part.data)) {
            text += escaped(utf8FromUtf16(*word));
        } else {
            text += std::to_string(statusWord(part));
        }
    }
    return text;
}

std::string readIndex(const std::string& text, const protocol::Layout& fields) {
    const std::vector<std::string> parts = splitIndex(text);
    if (parts.size() != fields.size()) {
        throw std::invalid_argument("index '" + text + "' needs " + std::to_string(fields.size()) +
                                    " parts");
    }
    Record index;
    for (size_t i = 0; i < parts.size(); i++) {
        index.push_back(valueFromText(parts[i], fields[i]));
    }
    return indexText(index);
}

}  // namespace tarn::simulator
