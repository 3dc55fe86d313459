#include "fuzz/ParcelModel.h"

#include <algorithm>
#include <climits>

namespace tarn::fuzz {

namespace {

size_t padded(size_t length) {
    return (length + 3) / 4 * 4;
}

}  // namespace

Bytes ParcelModel::written() const {
    Bytes bytes = mMemory;
    bytes.resize(mSize);
    return bytes;
}

void ParcelModel::setSize(size_t size, size_t capacity) {
    if (!mAllocated) mPosition = 0;
    mAllocated = true;
    if (size <= capacity) mPosition = std::min(mPosition, size);
    mSize = size;
}

void ParcelModel::setCapacity(size_t wanted, size_t capacity) {
    if (mAllocated || wanted <= capacity) return;
    mSize = mPosition = 0;
    mAllocated = true;
}

void ParcelModel::setData(const Bytes& bytes) {
    mMemory = bytes;
    mSize = bytes.size();
    mPosition = 0;
    mAllocated = !bytes.empty() || !mAllocated;
}

void ParcelModel::append(const Bytes& bytes, size_t capacity) {
    if (bytes.empty()) return;
    makeRoom(bytes.size(), capacity);
    // The size grows by the bytes, wherever the position is.
    const size_t size = mSize + bytes.size();
    put(bytes);
    mSize = size;
}

void ParcelModel::write(const Bytes& bytes, size_t capacity) {
    Bytes whole = bytes;
    whole.resize(padded(bytes.size()));
    writeUnpadded(whole, capacity);
}

void ParcelModel::writeUnpadded(const Bytes& bytes, size_t capacity) {
    makeRoom(bytes.size(), capacity);
    put(bytes);
}

std::optional<Bytes> ParcelModel::read(size_t length) {
    const size_t end = mPosition + padded(length);
    if (end > mSize) return std::nullopt;
    const Bytes all = written();
    const auto start = all.begin() + static_cast<ptrdiff_t>(mPosition);
    mPosition = end;
    return Bytes(start, start + static_cast<ptrdiff_t>(length));
}

std::optional<int32_t> ParcelModel::readWord() {
    const std::optional<Bytes> bytes = read(sizeof(int32_t));
    if (!bytes) return std::nullopt;
    return Input(bytes->data(), bytes->size()).number<int32_t>();
}

std::optional<Bytes> ParcelModel::readText(size_t unitSize) {
    // Without a length word there is no text for its length of 0 either.
    const int32_t length = readWord().value_or(0);
    if (length < 0 || length == INT32_MAX) return std::nullopt;
    const size_t bytes = static_cast<size_t>(length) * unitSize;
    std::optional<Bytes> text = read(bytes + unitSize);
    if (!text) return std::nullopt;
    const auto terminator = text->begin() + static_cast<ptrdiff_t>(bytes);
    if (std::any_of(terminator, text->end(), [](uint8_t byte) { return byte != 0; })) {
        return std::nullopt;
    }
    text->resize(bytes);
    return text;
}

std::optional<std::string> ParcelModel::readCString() {
    const Bytes all = written();
    if (mPosition >= all.size()) return std::nullopt;
    const auto start = all.begin() + static_cast<ptrdiff_t>(mPosition);
    const auto end = std::find(start, all.end(), 0);
    if (end == all.end()) return std::nullopt;
    const std::string text(start, end);
    mPosition += padded(text.size() + 1);
    return text;
}

std::optional<Bytes> ParcelModel::readVector(size_t elementSize) {
    const std::optional<size_t> count = readCount();
    return count ? read(*count * elementSize) : std::nullopt;
}

std::optional<std::vector<Bytes>> ParcelModel::readTexts(size_t unitSize) {
    const std::optional<size_t> count = readCount();
    if (!count) return std::nullopt;
    std::vector<Bytes> texts;
    for (size_t i = 0; i < *count; i++) {
        const std::optional<Bytes> text = readText(unitSize);
        if (!text) return std::nullopt;
        texts.push_back(*text);
    }
    return texts;
}

/** No element takes less than a byte, so that a count beyond what is left is refused at once. */
std::optional<size_t> ParcelModel::readCount() {
    const std::optional<int32_t> count = readWord();
    if (!count || *count < 0) return std::nullopt;
    if (static_cast<size_t>(*count) > available()) return std::nullopt;
    return static_cast<size_t>(*count);
}

/** Puts the position where so many bytes can be written. */
void ParcelModel::makeRoom(size_t length, size_t capacity) {
    if (mPosition + length <= capacity) return;
    const size_t next = std::max<size_t>((mSize + length) * 3 / 2, 128);
    if (!mAllocated) {
        mSize = mPosition = 0;
    } else if (next <= capacity) {
        mPosition = std::min(mPosition, next);
    }
    mAllocated = true;
}

void ParcelModel::put(const Bytes& bytes) {
    const size_t end = mPosition + bytes.size();
    if (mMemory.size() < end) mMemory.resize(end);
    std::copy(bytes.begin(), bytes.end(), mMemory.begin() + static_cast<ptrdiff_t>(mPosition));
    mPosition = end;
    mSize = std::max(mSize, end);
}

}  // namespace tarn::fuzz
