#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

namespace tarn::fuzz {

using Bytes = std::vector<uint8_t>;

/** Takes a fuzzer's input apart, from its front. Past its end everything is zero or empty. */
class Input {
  public:
    Input(const uint8_t* data, size_t size) : mNext(data), mEnd(data + size) {}

    bool empty() const { return mNext == mEnd; }

    /** A number as it stands on the wire. */
    template <typename T>
    T number() {
        static_assert(std::is_arithmetic_v<T>);
        T value{};
        const size_t size = std::min(sizeof(value), left());
        if (size > 0) memcpy(&value, take(size), size);
        return value;
    }

    uint8_t byte() { return number<uint8_t>(); }
    bool flag() { return (byte() & 1) != 0; }

    /** From 0 to below count, which is from 1 to 65536. */
    size_t choice(size_t count) { return (count <= 256 ? byte() : number<uint16_t>()) % count; }

    /** A length of one byte, then so many bytes. */
    Bytes shortBytes() { return bytes(byte()); }

    /** A length of two bytes, then so many bytes. */
    Bytes longBytes() { return bytes(number<uint16_t>()); }

    /** As shortBytes(). */
    std::string text() {
        const Bytes found = shortBytes();
        return std::string(found.begin(), found.end());
    }

    std::string rest() {
        const Bytes found = bytes(left());
        return std::string(found.begin(), found.end());
    }

    /** Up to the next line feed, which is left out, or to the end. */
    std::string line() {
        const uint8_t* end = std::find(mNext, mEnd, uint8_t{'\n'});
        std::string found(mNext, end);
        mNext = end == mEnd ? end : end + 1;
        return found;
    }

  private:
    size_t left() const { return static_cast<size_t>(mEnd - mNext); }

    const uint8_t* take(size_t size) {
        const uint8_t* start = mNext;
        mNext += size;
        return start;
    }

    Bytes bytes(size_t size) {
        size = std::min(size, left());
        const uint8_t* start = take(size);
        return Bytes(start, start + size);
    }

    const uint8_t* mNext;
    const uint8_t* mEnd;
};

}  // namespace tarn::fuzz
