// Layouts, and values by them: out of bytes, text and JSON, and back.

#include <binder/Parcel.h>
#include <json/value.h>

#include <optional>
#include <stdexcept>
#include <string>

#include "fuzz/support/Check.h"
#include "fuzz/support/Input.h"
#include "protocol/Layout.h"
#include "values/Codec.h"
#include "values/Hex.h"
#include "values/StrictJson.h"
#include "values/Utf8.h"
#include "values/ValueJson.h"
#include "values/ValueText.h"

using android::Parcel;
using tarn::protocol::Field;
using tarn::protocol::Layout;
using tarn::protocol::Type;
using tarn::values::Record;
using tarn::values::Value;

namespace tarn::fuzz {

namespace {

Bytes encoded(const Record& record) {
    Parcel parcel;
    for (const Value& value : record) values::encode(value, &parcel);
    return values::bytesOf(parcel);
}

/** A layout is described as it was written, but for its first fields' names. */
void describeAgain(const Layout& layout) {
    for (const Field& field : layout) {
        const Layout again = protocol::parseLayout(values::describe(field) + " " + field.name);
        check(values::looksAlike(again, {field}), "a description is another layout");
    }
}

/** Whatever is finite can be written as JSON and read again. */
void throughJson(const Value& value, const Field& field) {
    const Json::Value json = values::toJson(value);
    if (!values::isFinite(value)) return;
    check(values::toJson(values::valueFromJson(json, field)) == json, "JSON reads as another");
}

/** What is encoded is decoded as the same. */
void throughBytes(const Record& record, const Layout& layout) {
    const Bytes bytes = encoded(record);
    const std::optional<Record> same = values::decode(*values::parcelOf(bytes), layout);
    check(same.has_value(), "encoded values can't be decoded");
    check(encoded(*same) == bytes, "encoded values decode as others");
}

void fromBytes(const Layout& layout, const std::string& text) {
    const Bytes bytes(text.begin(), text.end());
    const std::optional<Record> record = values::decode(*values::parcelOf(bytes), layout);
    if (!record) return;
    check(record->size() == layout.size(), "a record lacks fields");
    throughBytes(*record, layout);
    for (size_t i = 0; i < layout.size(); i++) throughJson((*record)[i], layout[i]);
}

void fromText(const Field& field, const std::string& text) try {
    const Value value = values::valueFromText(text, field);
    throughBytes({value}, {field});
    throughJson(value, field);
} catch (const std::invalid_argument&) {
    // A text that is refused.
}

void fromJson(const Field& field, const std::string& text) try {
    const Value value = values::valueFromJson(values::parseJson(text), field);
    throughBytes({value}, {field});
    throughJson(value, field);
} catch (const std::invalid_argument&) {
    // A text that is refused.
}

void withoutLayout(const std::string& text) {
    if (const std::optional<std::u16string> units = values::utf16FromUtf8(text)) {
        check(values::utf8FromUtf16(*units) == text, "UTF-8 comes back as another");
    }
    if (const std::optional<Bytes> bytes = values::bytesFromHex(text)) {
        check(values::bytesFromHex(values::hexWords(*bytes)) == bytes, "bytes come back as others");
    }
}

/** A line with a layout; the rest is a value's. */
void run(Input* input) {
    Layout layout;
    try {
        layout = protocol::parseLayout(input->line());
    } catch (const std::invalid_argument&) {
        return;
    }
    describeAgain(layout);
    const std::string text = input->rest();
    fromBytes(layout, text);
    withoutLayout(text);
    if (layout.empty()) return;
    fromText(layout[0], text);
    fromJson(layout[0], text);
}

}  // namespace

}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    tarn::fuzz::Input input(data, size);
    tarn::fuzz::run(&input);
    return 0;
}
