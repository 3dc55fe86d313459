#include <binder/Parcel.h>
#include <binder/TextOutput.h>

#include <algorithm>
#include <cstdio>

#include "ParcelObjectTable.h"

namespace android {

namespace {

constexpr size_t kBytesPerLine = 16;

std::string hexLine(const uint8_t* bytes, size_t offset, size_t count) {
    char text[32];
    snprintf(text, sizeof(text), "\n%08zx:", offset);
    std::string line = text;
    for (size_t i = 0; i < count; i++) {
        snprintf(text, sizeof(text), " %02x", bytes[offset + i]);
        line += text;
    }
    return line;
}

void printText(TextOutput& to, const std::string& text) {
    to.print(text.c_str(), text.size());
}

}  // namespace

void Parcel::print(TextOutput& to, uint32_t /*flags*/) const {
    printText(to, "Parcel(");
    if (mError != NO_ERROR) printText(to, "error " + std::to_string(mError) + ", ");
    printText(to, std::to_string(mDataSize) + " bytes");
    for (size_t offset = 0; offset < mDataSize; offset += kBytesPerLine) {
        printText(to, hexLine(mData, offset, std::min(kBytesPerLine, mDataSize - offset)));
    }
    parcel::forEachObject(mObjects, mObjectsSize, [&to](size_t offset, const IBinder* binder) {
        char text[64];
        snprintf(text, sizeof(text), "\nbinder %p at %zu", static_cast<const void*>(binder),
                 offset);
        printText(to, text);
    });
    printText(to, ")");
}

}  // namespace android
