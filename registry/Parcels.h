#pragma once

#include <binder/Parcel.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tarn::registry {

/** A parcel that holds exactly these bytes, at position 0. */
inline std::unique_ptr<android::Parcel> parcelOf(const std::vector<uint8_t>& bytes) {
    auto parcel = std::make_unique<android::Parcel>();
    parcel->setData(bytes.data(), bytes.size());
    return parcel;
}

/** The parcel's bytes from its start, as hexadecimal pairs. */
inline std::string hexOf(const android::Parcel& parcel) {
    static const char kDigits[] = "0123456789abcdef";
    std::string hex;
    for (size_t i = 0; i < parcel.dataSize(); i++) {
        hex += kDigits[parcel.data()[i] >> 4];
        hex += kDigits[parcel.data()[i] & 15];
    }
    return hex;
}

}  // namespace tarn::registry
