#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "fuzz/support/Input.h"

namespace tarn::fuzz {

/** A parcel without objects, as plain as can be: bytes and a position. */
class ParcelModel {
  public:
    size_t size() const { return std::max(mSize, mPosition); }
    size_t available() const { return size() - mPosition; }
    size_t position() const { return mPosition; }
    Bytes written() const;

    void setPosition(size_t position) { mPosition = position; }

    // What changes the size or writes needs to know how much the parcel has allocated: the first
    // allocation resets the position, and one that is too far out for a next one is clamped.
    void setSize(size_t size, size_t capacity);
    void setCapacity(size_t wanted, size_t capacity);
    void setData(const Bytes& bytes);
    void append(const Bytes& bytes, size_t capacity);

    /** Bytes with what fills their last word up. */
    void write(const Bytes& bytes, size_t capacity);
    void writeUnpadded(const Bytes& bytes, size_t capacity);

    // Nothing for what can't be read.

    /** Moves behind the word in which the bytes end. */
    std::optional<Bytes> read(size_t length);
    std::optional<int32_t> readWord();

    /** Units of a length word and a terminator. */
    std::optional<Bytes> readText(size_t unitSize);
    std::optional<std::string> readCString();

    /** Elements of so many bytes after their count. */
    std::optional<Bytes> readVector(size_t elementSize);
    std::optional<std::vector<Bytes>> readTexts(size_t unitSize);

  private:
    void makeRoom(size_t length, size_t capacity);
    void put(const Bytes& bytes);
    std::optional<size_t> readCount();

    Bytes mMemory;  // also what lies beyond the size; beyond its end are zeros
    size_t mSize = 0;
    size_t mPosition = 0;
    bool mAllocated = false;
};

}  // namespace tarn::fuzz
