// Sequences of parcel calls, compared with a model of a parcel after each.

#include <binder/Parcel.h>
#include <utils/String16.h>
#include <utils/String8.h>

#include <cstring>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "fuzz/ParcelModel.h"
#include "fuzz/support/Check.h"
#include "fuzz/support/Input.h"

using android::Parcel;
using android::status_t;
using android::String16;
using android::String8;

namespace tarn::fuzz {

namespace {

constexpr size_t kLargest = 2048;

template <typename T>
Bytes bytesOf(const T* elements, size_t count) {
    const auto* bytes = reinterpret_cast<const uint8_t*>(elements);
    return Bytes(bytes, bytes + count * sizeof(T));
}

template <typename T>
Bytes bytesOf(T value) {
    return bytesOf(&value, 1);
}

Bytes bytesOf(const String16& text) {
    return bytesOf(text.string(), text.size());
}

Bytes bytesOf(const String8& text) {
    return bytesOf(text.string(), text.size());
}

std::u16string units(const Bytes& bytes) {
    std::u16string text(bytes.size() / sizeof(char16_t), u'\0');
    if (!text.empty()) memcpy(text.data(), bytes.data(), text.size() * sizeof(char16_t));
    return text;
}

String16 text16(const Bytes& bytes) {
    const std::u16string text = units(bytes);
    return String16(text.data(), text.size());
}

template <typename T>
std::vector<T> elements(const Bytes& bytes) {
    std::vector<T> list(bytes.size() / sizeof(T));
    if (!list.empty()) memcpy(list.data(), bytes.data(), list.size() * sizeof(T));
    return list;
}

class Pair {
  public:
    explicit Pair(Input* input) : mInput(*input) {}

    void step() {
        switch (mInput.choice(6)) {
            case 0:
                move();
                break;
            case 1:
            case 2:
                writePlain();
                break;
            case 3:
                writeLonger();
                break;
            case 4:
                readPlain();
                break;
            default:
                readLonger();
                break;
        }
        compare();
    }

  private:
    /** What is no write and no read. */
    void move() {
        const size_t number = mInput.number<uint16_t>() % kLargest;
        const size_t capacity = mParcel.dataCapacity();
        switch (mInput.choice(7)) {
            case 0:
                mParcel.setDataPosition(number);
                mModel.setPosition(number);
                break;
            case 1:
                succeeded(mParcel.setDataSize(number));
                mModel.setSize(number, capacity);
                break;
            case 2:
                succeeded(mParcel.setDataCapacity(number));
                mModel.setCapacity(number, capacity);
                break;
            case 3: {
                const Bytes bytes = mInput.shortBytes();
                succeeded(mParcel.setData(bytes.data(), bytes.size()));
                mModel.setData(bytes);
                break;
            }
            case 4: {
                const Bytes bytes = mInput.shortBytes();
                Parcel other;
                other.setData(bytes.data(), bytes.size());
                append(other, bytes, number, capacity);
                break;
            }
            case 5:
                append(mParcel, mModel.written(), number, capacity);
                break;
            default:
                mParcel.freeData();
                mModel = ParcelModel();
                break;
        }
    }

    void append(const Parcel& source, const Bytes& bytes, size_t offset, size_t capacity) {
        const size_t length = mInput.byte();
        const status_t status = mParcel.appendFrom(&source, offset, length);
        if (length == 0) return succeeded(status);
        if (offset + length > bytes.size()) return check(status != android::OK, "append's range");
        succeeded(status);
        const auto start = bytes.begin() + static_cast<ptrdiff_t>(offset);
        mModel.append(Bytes(start, start + static_cast<ptrdiff_t>(length)), capacity);
    }

    void writePlain() {
        switch (mInput.choice(9)) {
            case 0:
                return writeNumber<int32_t>(&Parcel::writeInt32);
            case 1:
                return writeNumber<uint32_t>(&Parcel::writeUint32);
            case 2:
                return writeNumber<int64_t>(&Parcel::writeInt64);
            case 3:
                return writeNumber<uint64_t>(&Parcel::writeUint64);
            case 4:
                return writeNumber<float>(&Parcel::writeFloat);
            case 5:
                return writeNumber<double>(&Parcel::writeDouble);
            case 6: {
                const bool on = mInput.flag();
                return wrote(bytesOf(int32_t{on}), [&] { return mParcel.writeBool(on); });
            }
            case 7: {
                const auto unit = static_cast<char16_t>(mInput.number<uint16_t>());
                return wrote(bytesOf(int32_t{unit}), [&] { return mParcel.writeChar(unit); });
            }
            default: {
                const auto byte = static_cast<int8_t>(mInput.byte());
                return wrote(bytesOf(int32_t{byte}), [&] { return mParcel.writeByte(byte); });
            }
        }
    }

    template <typename T>
    void writeNumber(status_t (Parcel::*write)(T)) {
        const T value = mInput.number<T>();
        wrote(bytesOf(value), [&] { return (mParcel.*write)(value); });
    }

    void wrote(const Bytes& bytes, const std::function<status_t()>& write) {
        const size_t capacity = mParcel.dataCapacity();
        succeeded(write());
        mModel.write(bytes, capacity);
    }

    void writeLonger() {
        const size_t kind = mInput.choice(12);
        const Bytes bytes = mInput.shortBytes();
        size_t capacity = mParcel.dataCapacity();
        switch (kind) {
            case 0:
                if (bytes.empty() && mModel.position() > capacity) return;
                succeeded(mParcel.write(bytes.data(), bytes.size()));
                return mModel.write(bytes, capacity);
            case 1:
                if (bytes.empty() && mModel.position() > capacity) return;
                succeeded(mParcel.writeUnpadded(bytes.data(), bytes.size()));
                return mModel.writeUnpadded(bytes, capacity);
            case 2: {
                const std::string text(bytes.begin(), std::find(bytes.begin(), bytes.end(), 0));
                succeeded(mParcel.writeCString(text.c_str()));
                return mModel.write(bytesOf(text.c_str(), text.size() + 1), capacity);
            }
            case 3: {
                const String8 text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
                succeeded(mParcel.writeString8(text));
                return modelText(bytesOf(text), sizeof(char), capacity);
            }
            case 4: {
                const String16 text = text16(bytes);
                succeeded(mParcel.writeString16(text));
                return modelText(bytesOf(text), sizeof(char16_t), capacity);
            }
            case 5: {
                std::string text;
                std::u16string wide;
                for (const uint8_t byte : bytes) {
                    text += static_cast<char>(byte & 0x7f);
                    wide += static_cast<char16_t>(byte & 0x7f);
                }
                succeeded(mParcel.writeUtf8AsUtf16(text));
                return modelText(bytesOf(wide.data(), wide.size()), sizeof(char16_t), capacity);
            }
            case 6:
                succeeded(mParcel.writeByteVector(bytes));
                return modelCounted(bytes, bytes.size(), capacity);
            case 7:
                return writeVector<int32_t>(bytes, &Parcel::writeInt32Vector);
            case 8:
                return writeVector<int64_t>(bytes, &Parcel::writeInt64Vector);
            case 9:
                return writeVector<double>(bytes, &Parcel::writeDoubleVector);
            case 10: {
                std::vector<bool> list;
                std::vector<int32_t> words;
                for (const uint8_t byte : bytes) {
                    list.push_back((byte & 1) != 0);
                    words.push_back(byte & 1);
                }
                succeeded(mParcel.writeBoolVector(list));
                return modelCounted(bytesOf(words.data(), words.size()), words.size(), capacity);
            }
            default: {
                const std::vector<String16> texts = {text16(bytes), String16("two")};
                succeeded(mParcel.writeString16Vector(texts));
                mModel.write(bytesOf(int32_t{2}), capacity);
                for (const String16& text : texts) {
                    // Behind the first word there is no position that an allocation would move.
                    modelText(bytesOf(text), sizeof(char16_t), SIZE_MAX);
                }
                return;
            }
        }
    }

    template <typename T>
    void writeVector(const Bytes& bytes, status_t (Parcel::*write)(const std::vector<T>&)) {
        const size_t capacity = mParcel.dataCapacity();
        const std::vector<T> list = elements<T>(bytes);
        succeeded((mParcel.*write)(list));
        modelCounted(bytesOf(list.data(), list.size()), list.size(), capacity);
    }

    void modelText(Bytes text, size_t unitSize, size_t capacity) {
        const size_t length = text.size() / unitSize;
        text.resize(text.size() + unitSize);
        modelCounted(text, length, capacity);
    }

    void modelCounted(const Bytes& bytes, size_t count, size_t capacity) {
        mModel.write(bytesOf(static_cast<int32_t>(count)), capacity);
        mModel.write(bytes, SIZE_MAX);
    }

    void readPlain() {
        switch (mInput.choice(8)) {
            case 0:
                return readNumber<int32_t>(&Parcel::readInt32);
            case 1:
                return readNumber<uint32_t>(&Parcel::readUint32);
            case 2:
                return readNumber<int64_t>(&Parcel::readInt64);
            case 3:
                return readNumber<float>(&Parcel::readFloat);
            case 4:
                return readNumber<double>(&Parcel::readDouble);
            case 5:
                return check(mParcel.readBool() == (mModel.readWord().value_or(0) != 0), "bool");
            case 6:
                return check(
                        mParcel.readChar() == static_cast<char16_t>(mModel.readWord().value_or(0)),
                        "char");
            default:
                return check(
                        mParcel.readByte() == static_cast<int8_t>(mModel.readWord().value_or(0)),
                        "byte");
        }
    }

    template <typename T>
    void readNumber(status_t (Parcel::*read)(T*) const) {
        T value{};
        const status_t status = (mParcel.*read)(&value);
        const std::optional<Bytes> expected = mModel.read(sizeof(T));
        check((status == android::OK) == expected.has_value(), "whether there is a number");
        if (expected) check(bytesOf(value) == *expected, "number");
    }

    void readLonger() {
        switch (mInput.choice(11)) {
            case 0: {
                const size_t length = mInput.byte();
                Bytes bytes(length);
                const bool read = mParcel.read(bytes.data(), length) == android::OK;
                return compareFound(read, bytes, mModel.read(length));
            }
            case 1: {
                const size_t length = mInput.byte();
                const void* bytes = mParcel.readInplace(length);
                const std::optional<Bytes> expected = mModel.read(length);
                // Without memory there is no place of no bytes.
                if (length == 0 && mParcel.data() == nullptr) return;
                return compareFound(
                        bytes != nullptr,
                        bytesOf(static_cast<const uint8_t*>(bytes), bytes != nullptr ? length : 0),
                        expected);
            }
            case 2: {
                const char* text = mParcel.readCString();
                const std::optional<std::string> expected = mModel.readCString();
                check((text != nullptr) == expected.has_value(), "whether there is a C text");
                if (expected) check(*expected == text, "C text");
                return;
            }
            case 3: {
                String8 text;
                const bool read = mParcel.readString8(&text) == android::OK;
                return compareFound(read, bytesOf(text), mModel.readText(sizeof(char)));
            }
            case 4: {
                String16 text;
                const bool read = mParcel.readString16(&text) == android::OK;
                return compareFound(read, bytesOf(text), mModel.readText(sizeof(char16_t)));
            }
            case 5: {
                std::string text;
                const bool read = mParcel.readUtf8FromUtf16(&text) == android::OK;
                const std::optional<Bytes> expected = mModel.readText(sizeof(char16_t));
                if (read) check(expected.has_value(), "UTF-8 of no text");
                return;
            }
            case 6:
                return readVector<uint8_t>(&Parcel::readByteVector);
            case 7:
                return readVector<int32_t>(&Parcel::readInt32Vector);
            case 8:
                return readVector<int64_t>(&Parcel::readInt64Vector);
            case 9: {
                std::vector<bool> list;
                const bool read = mParcel.readBoolVector(&list) == android::OK;
                const std::optional<Bytes> expected = mModel.readVector(sizeof(int32_t));
                check(read == expected.has_value(), "whether there are booleans");
                if (!expected) return;
                std::vector<bool> wanted;
                for (const int32_t word : elements<int32_t>(*expected)) {
                    wanted.push_back(word != 0);
                }
                return check(list == wanted, "booleans");
            }
            default: {
                std::vector<String16> list;
                const bool read = mParcel.readString16Vector(&list) == android::OK;
                const std::optional<std::vector<Bytes>> expected =
                        mModel.readTexts(sizeof(char16_t));
                check(read == expected.has_value(), "whether there are texts");
                if (!expected) return;
                check(list.size() == expected->size(), "how many texts there are");
                for (size_t i = 0; i < list.size(); i++) {
                    check(bytesOf(list[i]) == (*expected)[i], "one of several texts");
                }
                return;
            }
        }
    }

    template <typename T>
    void readVector(status_t (Parcel::*read)(std::vector<T>*) const) {
        std::vector<T> list;
        const bool found = (mParcel.*read)(&list) == android::OK;
        compareFound(found, bytesOf(list.data(), list.size()), mModel.readVector(sizeof(T)));
    }

    void compareFound(bool found, const Bytes& bytes, const std::optional<Bytes>& expected) {
        check(found == expected.has_value(), "whether there is something to read");
        if (expected) check(bytes == *expected, "what was read");
    }

    void succeeded(status_t status) { check(status == android::OK, "status"); }

    void compare() {
        check(mParcel.dataSize() == mModel.size(), "size");
        check(mParcel.dataPosition() == mModel.position(), "position");
        check(mParcel.dataAvail() == mModel.available(), "what is left");
        const Bytes written = mModel.written();
        check(written.empty() || memcmp(mParcel.data(), written.data(), written.size()) == 0,
              "bytes");
    }

    Input& mInput;
    Parcel mParcel;
    ParcelModel mModel;
};

}  // namespace

}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    tarn::fuzz::Input input(data, size);
    tarn::fuzz::Pair pair(&input);
    while (!input.empty()) pair.step();
    return 0;
}
