#include "values/Codec.h"

#include <utils/Errors.h>
#include <utils/String16.h>

namespace tarn::values {

using android::Parcel;
using protocol::Field;
using protocol::Layout;
using protocol::Type;

namespace {

bool decodeField(const Parcel& parcel, const Field& field, Value* value);

bool decodeRecord(const Parcel& parcel, const Layout& layout, Record* record) {
    for (const Field& field : layout) {
        Value value;
        if (!decodeField(parcel, field, &value)) return false;
        record->push_back(std::move(value));
    }
    return true;
}

bool decodeText(const Parcel& parcel, Value* value) {
    size_t length = 0;
    const char16_t* units = parcel.readString16Inplace(&length);
    if (units == nullptr) return false;
    value->data = std::u16string(units, length);
    return true;
}

bool decodeBytes(const Parcel& parcel, Value* value) {
    int32_t length = 0;
    if (parcel.readInt32(&length) != android::OK || length < 0) return false;
    const auto* bytes = static_cast<const uint8_t*>(parcel.readInplace(length));
    if (bytes == nullptr) return false;
    value->data = Bytes(bytes, bytes + length);
    return true;
}

bool decodeList(const Parcel& parcel, const Field& field, Value* value) {
    int32_t count = 0;
    if (parcel.readInt32(&count) != android::OK || count < 0) return false;
    // Every field takes a word at least, so that a count beyond that is not worth a start.
    if (static_cast<size_t>(count) > parcel.dataAvail() / sizeof(int32_t)) return false;
    List list(count);
    for (Record& record : list) {
        if (!decodeRecord(parcel, field.record, &record)) return false;
    }
    value->data = std::move(list);
    return true;
}

bool decodeField(const Parcel& parcel, const Field& field, Value* value) {
    switch (field.type) {
        case Type::kInt32:
            return parcel.readInt32(&value->data.emplace<int32_t>()) == android::OK;
        case Type::kBool: {
            int32_t word = 0;
            if (parcel.readInt32(&word) != android::OK) return false;
            value->data = word != 0;
            return true;
        }
        case Type::kFloat:
            return parcel.readFloat(&value->data.emplace<float>()) == android::OK;
        case Type::kString16:
            return decodeText(parcel, value);
        case Type::kBytes:
            return decodeBytes(parcel, value);
        case Type::kList:
            return decodeList(parcel, field, value);
    }
    return false;
}

struct Encoder {
    Parcel* parcel;

    void operator()(int32_t number) const { parcel->writeInt32(number); }
    void operator()(bool on) const { parcel->writeBool(on); }
    void operator()(float number) const { parcel->writeFloat(number); }
    void operator()(const std::u16string& text) const {
        parcel->writeString16(text.data(), text.size());
    }
    void operator()(const Bytes& bytes) const {
        parcel->writeInt32(static_cast<int32_t>(bytes.size()));
        parcel->write(bytes.data(), bytes.size());
    }
    void operator()(const List& list) const {
        parcel->writeInt32(static_cast<int32_t>(list.size()));
        for (const Record& record : list) {
            for (const Value& value : record) encode(value, parcel);
        }
    }
};

}  // namespace

std::optional<Record> decode(const Parcel& parcel, const Layout& layout) {
    Record record;
    if (!decodeRecord(parcel, layout, &record)) return std::nullopt;
    if (parcel.dataAvail() != 0) return std::nullopt;
    return record;
}

void encode(const Value& value, Parcel* parcel) {
    std::visit(Encoder{parcel}, value.data);
}

Bytes bytesOf(const Parcel& parcel) {
    return Bytes(parcel.data(), parcel.data() + parcel.dataSize());
}

std::unique_ptr<Parcel> parcelOf(const Bytes& bytes) {
    auto parcel = std::make_unique<Parcel>();
    parcel->setData(bytes.data(), bytes.size());
    return parcel;
}

}  // namespace tarn::values
