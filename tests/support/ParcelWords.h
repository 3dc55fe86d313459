#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace android {
class Parcel;
}

namespace tarn::test {

/** One value that went into a parcel or came out of it, as a row's layout calls its type. */
struct ParcelWord {
    const char* type;  // "i32", "bool", "s16", "f32", or "raw" for the bytes behind a length
    int32_t value;     // of an i32
    const android::Parcel* parcel;
    size_t position;  // in the parcel, before it was written or read
};

/**
 * What this program wrote to parcels and read from them, in the order of time, but for what it
 * asked an empty parcel for; clear them before a test. The program that links it has Parcel
 * operations of its own, which stand before the platform's and pass on to them.
 */
std::vector<ParcelWord>& wordsWritten();
std::vector<ParcelWord>& wordsRead();

}  // namespace tarn::test
