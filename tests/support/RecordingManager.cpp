#include "tests/support/RecordingManager.h"

#include <cstdlib>
#include <stdexcept>

namespace tarn::test {

using android::Parcel;
using android::String16;

Bytes hex(const std::string& text) {
    Bytes bytes;
    std::string digits;
    for (const char c : text) {
        if (c != ' ') digits += c;
    }
    if (digits.size() % 2 != 0 || digits.find_first_not_of("0123456789abcdef") != digits.npos) {
        throw std::invalid_argument("not pairs of hexadecimal digits: " + text);
    }
    for (size_t i = 0; i < digits.size(); i += 2) {
        bytes.push_back(static_cast<uint8_t>(strtoul(digits.substr(i, 2).c_str(), nullptr, 16)));
    }
    return bytes;
}

Bytes words(const std::vector<int32_t>& values) {
    Bytes bytes;
    for (const int32_t value : values) {
        for (int shift = 0; shift < 32; shift += 8) {
            bytes.push_back(static_cast<uint8_t>(static_cast<uint32_t>(value) >> shift));
        }
    }
    return bytes;
}

Reply& Reply::i32(int32_t value) {
    mParcel.writeInt32(value);
    return *this;
}

Reply& Reply::boolean(bool value) {
    mParcel.writeBool(value);
    return *this;
}

Reply& Reply::s16(const std::string& text) {
    mParcel.writeString16(String16(text.c_str()));
    return *this;
}

Bytes Reply::bytes() const {
    return Bytes(mParcel.data(), mParcel.data() + mParcel.dataSize());
}

int RecordingManager::invoke(const Parcel& request, Parcel* reply) {
    mRequests.emplace_back(request.data(), request.data() + request.dataSize());
    const Bytes bytes = mReplies.front();
    if (mReplies.size() > 1) mReplies.pop_front();
    reply->setData(bytes.data(), bytes.size());
    const int status = reply->readInt32();
    reply->setDataPosition(0);
    return status;
}

}  // namespace tarn::test
