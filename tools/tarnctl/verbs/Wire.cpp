#include "tools/tarnctl/verbs/Wire.h"

#include <utils/Errors.h>
#include <utils/String16.h>

#include "registry/Arguments.h"
#include "registry/Results.h"
#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/output/Format.h"

namespace tarnctl {

using android::Parcel;
using android::String16;
using ::tarn::protocol::Field;
using ::tarn::protocol::Layout;
using ::tarn::protocol::Type;
using ::tarn::registry::appendField;
using ::tarn::registry::parseBool;
using ::tarn::registry::parseBytes;
using ::tarn::registry::parseFloat;
using ::tarn::registry::parseInt;
using ::tarn::registry::parseText;
using ::tarn::registry::toUtf8;

namespace {

struct WireType {
    const char* word;
    void (*write)(const std::string& text, Parcel* parcel);
};

const WireType kTypes[] = {
        {"i32", [](const std::string& text,
                   Parcel* parcel) { parcel->writeInt32(parseInt("i32", text)); }},
        {"bool", [](const std::string& text,
                    Parcel* parcel) { parcel->writeBool(parseBool("bool", text)); }},
        {"s16",
         [](const std::string& text, Parcel* parcel) {
             const std::string utf8 = parseText("s16", text);
             parcel->writeString16(String16(utf8.data(), utf8.size()));
         }},
        {"f32", [](const std::string& text,
                   Parcel* parcel) { parcel->writeFloat(parseFloat("f32", text)); }},
        {"bytes",
         [](const std::string& text, Parcel* parcel) {
             const std::vector<uint8_t> bytes = parseBytes("bytes", text);
             parcel->writeInt32(static_cast<int32_t>(bytes.size()));
             parcel->write(bytes.data(), bytes.size());
         }},
};

class FieldReader {
  public:
    explicit FieldReader(const Parcel& parcel) : mParcel(parcel) {}

    bool readRecord(const Layout& layout, Json::Value* record) {
        *record = Json::Value(Json::objectValue);
        for (const Field& field : layout) {
            Json::Value value;
            if (!readField(field, &value)) return false;
            appendField(record, field.name, value);
        }
        return true;
    }

  private:
    bool readField(const Field& field, Json::Value* value) {
        switch (field.type) {
            case Type::kInt32:
            case Type::kBool: {
                int32_t word = 0;
                if (mParcel.readInt32(&word) != android::OK) return false;
                *value = field.type == Type::kBool ? Json::Value(word != 0) : Json::Value(word);
                return true;
            }
            case Type::kFloat: {
                float number = 0;
                if (mParcel.readFloat(&number) != android::OK) return false;
                *value = number;
                return true;
            }
            case Type::kString16:
                return readText(value);
            case Type::kBytes:
                return readBytes(value);
            case Type::kList:
                return readList(field, value);
        }
        return false;
    }

    bool readText(Json::Value* value) {
        String16 text;
        if (mParcel.readString16(&text) != android::OK) return false;
        *value = toUtf8(text);
        return true;
    }

    bool readBytes(Json::Value* value) {
        int32_t size = 0;
        if (mParcel.readInt32(&size) != android::OK || size < 0) return false;
        const auto* bytes = static_cast<const uint8_t*>(mParcel.readInplace(size));
        if (bytes == nullptr) return false;
        *value = hexWords(std::vector<uint8_t>(bytes, bytes + size));
        return true;
    }

    bool readList(const Field& field, Json::Value* value) {
        int32_t count = 0;
        if (mParcel.readInt32(&count) != android::OK || count < 0) return false;
        *value = Json::Value(Json::arrayValue);
        for (int32_t i = 0; i < count; i++) {
            Json::Value record;
            // A hostile count ends here at the latest: every field takes a word at least.
            if (mParcel.dataAvail() == 0 || !readRecord(field.record, &record)) return false;
            value->append(record);
        }
        return true;
    }

    const Parcel& mParcel;
};

}  // namespace

const std::vector<std::string>& wireTypes() {
    static const auto* words = [] {
        auto* list = new std::vector<std::string>;
        for (const WireType& type : kTypes) list->push_back(type.word);
        return list;
    }();
    return *words;
}

void writeValue(const std::string& type, const std::string& text, Parcel* parcel) {
    for (const WireType& known : kTypes) {
        if (type == known.word) return known.write(text, parcel);
    }
    throw Failure(kBadUsage, "no type \"" + type + "\"; accepted: " + joined(wireTypes(), ", "));
}

std::optional<Json::Value> readFields(const Parcel& parcel, const Layout& layout) {
    Json::Value record;
    if (!FieldReader(parcel).readRecord(layout, &record) || parcel.dataAvail() != 0) {
        return std::nullopt;
    }
    return record;
}

}  // namespace tarnctl
