#include "tools/tarnctl/output/Format.h"

#include <json/writer.h>
#include <utils/String16.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <variant>

#include "registry/Results.h"
#include "values/Hex.h"

namespace tarnctl {

using ::tarn::protocol::Field;
using ::tarn::protocol::Layout;
using ::tarn::registry::appendField;
using ::tarn::registry::fieldNames;
using ::tarn::registry::toUtf8;
using ::tarn::values::Bytes;
using ::tarn::values::List;
using ::tarn::values::Record;

namespace {

/** Digits that bring every float back, and no more: 0.1 rather than 0.100000001. */
constexpr int kFewestDigits = 6;
constexpr int kMostDigits = 9;

std::string floatText(double value) {
    char text[32];
    for (int digits = kFewestDigits; digits <= kMostDigits; digits++) {
        snprintf(text, sizeof(text), "%.*g", digits, value);
        if (strtof(text, nullptr) == static_cast<float>(value)) break;
    }
    return text;
}

bool isScalar(const Json::Value& value) {
    return !value.isArray() && !value.isObject();
}

bool isScalarList(const Json::Value& value) {
    return value.isArray() && std::all_of(value.begin(), value.end(), isScalar);
}

std::string scalarText(const Json::Value& value) {
    if (value.isNull()) return "null";
    if (value.isDouble() && !value.isIntegral()) return floatText(value.asDouble());
    return value.asString();
}

/** What fits after a name on one line. */
std::string inlineText(const Json::Value& value) {
    if (isScalar(value)) return scalarText(value);
    if (value.empty()) return value.isArray() ? "[]" : "{}";
    std::vector<std::string> texts;
    for (const Json::Value& element : value) texts.push_back(scalarText(element));
    return "[" + joined(texts, ", ") + "]";
}

bool fitsInline(const Json::Value& value) {
    return isScalar(value) || isScalarList(value) || value.empty();
}

void appendIndented(std::vector<std::string>* lines, const std::vector<std::string>& block,
                    const char* first) {
    for (size_t i = 0; i < block.size(); i++) {
        lines->push_back((i == 0 ? first : "  ") + block[i]);
    }
}

/** A record's names in their order, with what tells whether the rest counts in front. */
std::vector<std::string> namesOf(const Json::Value& record) {
    std::vector<std::string> names = fieldNames(record);
    std::stable_partition(names.begin(), names.end(), [](const std::string& name) {
        return name == "result" || name == "status";
    });
    return names;
}

std::vector<std::string> recordLines(const Json::Value& record) {
    std::vector<std::string> lines;
    const std::vector<std::string> names = namesOf(record);
    for (const std::string& name : names) {
        if (fitsInline(record[name])) lines.push_back(name + ": " + inlineText(record[name]));
    }
    for (const std::string& name : names) {
        if (fitsInline(record[name])) continue;
        lines.push_back(name + ":");
        appendIndented(&lines, plainLines(record[name]), "  ");
    }
    return lines;
}

/**
 * A float's double has digits that the float never had; this takes them away. What JSON has no
 * number for, infinity and what is none, becomes null.
 */
Json::Value withShortFloats(const Json::Value& value) {
    if (value.isDouble() && !std::isfinite(value.asDouble())) return Json::Value();
    if (value.isDouble() && !value.isIntegral()) {
        return Json::Value(strtod(floatText(value.asDouble()).c_str(), nullptr));
    }
    Json::Value copy = value;
    if (value.isArray()) {
        for (Json::ArrayIndex i = 0; i < value.size(); i++) copy[i] = withShortFloats(value[i]);
    } else if (value.isObject()) {
        for (const std::string& name : value.getMemberNames()) {
            copy[name] = withShortFloats(value[name]);
        }
    }
    return copy;
}

struct FieldWriter {
    const Field& field;

    Json::Value operator()(int32_t number) const { return number; }
    Json::Value operator()(bool on) const { return on; }
    Json::Value operator()(float number) const { return number; }
    Json::Value operator()(const std::u16string& text) const {
        return toUtf8(android::String16(text.data(), text.size()));
    }
    Json::Value operator()(const Bytes& bytes) const { return ::tarn::values::hexWords(bytes); }
    Json::Value operator()(const List& list) const {
        Json::Value records(Json::arrayValue);
        for (const Record& record : list) records.append(namedFields(record, field.record));
        return records;
    }
};

}  // namespace

std::vector<std::string> plainLines(const Json::Value& value) {
    if (value.isObject()) return recordLines(value);
    if (!value.isArray()) return {scalarText(value)};
    std::vector<std::string> lines;
    for (const Json::Value& element : value) {
        if (isScalar(element)) {
            lines.push_back(scalarText(element));
        } else {
            appendIndented(&lines, plainLines(element), "- ");
        }
    }
    return lines;
}

std::string jsonText(const Json::Value& value, JsonStyle style) {
    Json::StreamWriterBuilder builder;
    builder["indentation"] = style == JsonStyle::kPretty ? "  " : "";
    builder["emitUTF8"] = true;
    builder["precision"] = kMostDigits;
    return Json::writeString(builder, withShortFloats(value));
}

Json::Value namedFields(const Record& record, const Layout& layout) {
    Json::Value object(Json::objectValue);
    for (size_t i = 0; i < record.size(); i++) {
        appendField(&object, layout[i].name, std::visit(FieldWriter{layout[i]}, record[i].data));
    }
    return object;
}

std::string hexCode(uint32_t code) {
    char text[16];
    snprintf(text, sizeof(text), "0x%04X", code);
    return text;
}

std::string joined(const std::vector<std::string>& texts, const std::string& separator) {
    std::string text;
    for (size_t i = 0; i < texts.size(); i++) text += (i == 0 ? "" : separator) + texts[i];
    return text;
}

}  // namespace tarnctl
