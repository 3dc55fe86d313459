#pragma once

#include <binder/Parcel.h>

#include <string>

namespace android {

/** A parcel's bytes as hexadecimal digits. */
inline std::string hexOf(const Parcel& parcel) {
    static const char digits[] = "0123456789abcdef";
    std::string text;
    for (size_t i = 0; i < parcel.dataSize(); i++) {
        text += digits[parcel.data()[i] >> 4];
        text += digits[parcel.data()[i] & 15];
    }
    return text;
}

}  // namespace android
