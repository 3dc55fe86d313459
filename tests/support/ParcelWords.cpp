#include "tests/support/ParcelWords.h"

#include <binder/Parcel.h>
#include <dlfcn.h>

#include <cstdlib>

namespace tarn::test {

namespace {

// The platform's operations call each other: only the outermost is the program's.
thread_local int gDepth = 0;

class Entered {
  public:
    Entered(std::vector<ParcelWord>* words, const android::Parcel* parcel)
        : mWords(words), mParcel(parcel), mPosition(parcel->dataPosition()) {
        gDepth++;
    }

    ~Entered() { gDepth--; }

    Entered(const Entered&) = delete;
    Entered& operator=(const Entered&) = delete;

    void note(const char* type, int32_t value = 0) {
        if (gDepth == 1) mWords->push_back({type, value, mParcel, mPosition});
    }

  private:
    std::vector<ParcelWord>* mWords;
    const android::Parcel* mParcel;
    size_t mPosition;
};

class Writes : public Entered {
  public:
    explicit Writes(const android::Parcel* parcel) : Entered(&wordsWritten(), parcel) {}
};

class Reads : public Entered {
  public:
    explicit Reads(const android::Parcel* parcel)
        : Entered(&wordsRead(), parcel), mEmpty(parcel->dataSize() == 0) {}

    void note(const char* type, int32_t value = 0) {
        if (!mEmpty) Entered::note(type, value);
    }

  private:
    bool mEmpty;
};

/** The platform's own operation, by one of the names that linkers know it by. */
template <typename Result, typename... Parameters>
auto platforms(const char* name, const char* otherName = nullptr) {
    void* function = dlsym(RTLD_NEXT, name);
    if (function == nullptr && otherName != nullptr) function = dlsym(RTLD_NEXT, otherName);
    if (function == nullptr) abort();
    return reinterpret_cast<Result (*)(Parameters...)>(function);
}

}  // namespace

std::vector<ParcelWord>& wordsWritten() {
    static std::vector<ParcelWord> words;
    return words;
}

std::vector<ParcelWord>& wordsRead() {
    static std::vector<ParcelWord> words;
    return words;
}

}  // namespace tarn::test

namespace android {

using tarn::test::platforms;
using tarn::test::Reads;
using tarn::test::Writes;

status_t Parcel::writeInt32(int32_t value) {
    static const auto next =
            platforms<status_t, Parcel*, int32_t>("_ZN7android6Parcel10writeInt32Ei");
    Writes entered(this);
    entered.note("i32", value);
    return next(this, value);
}

status_t Parcel::writeBool(bool value) {
    static const auto next = platforms<status_t, Parcel*, bool>("_ZN7android6Parcel9writeBoolEb");
    Writes entered(this);
    entered.note("bool");
    return next(this, value);
}

status_t Parcel::writeFloat(float value) {
    static const auto next =
            platforms<status_t, Parcel*, float>("_ZN7android6Parcel10writeFloatEf");
    Writes entered(this);
    entered.note("f32");
    return next(this, value);
}

status_t Parcel::writeString16(const String16& text) {
    static const auto next = platforms<status_t, Parcel*, const String16&>(
            "_ZN7android6Parcel13writeString16ERKNS_8String16E");
    Writes entered(this);
    entered.note("s16");
    return next(this, text);
}

status_t Parcel::writeString16Vector(const std::vector<String16>& texts) {
    static const auto next = platforms<status_t, Parcel*, const std::vector<String16>&>(
            "_ZN7android6Parcel19writeString16VectorERKSt6vectorINS_8String16ESaIS2_EE",
            "_ZN7android6Parcel19writeString16VectorERKNSt3__16vectorINS_8String16ENS1_"
            "9allocatorIS3_EEEE");
    Writes entered(this);
    entered.note("i32", static_cast<int32_t>(texts.size()));
    for (size_t i = 0; i < texts.size(); i++) entered.note("s16");
    return next(this, texts);
}

status_t Parcel::writeByteArray(size_t size, const uint8_t* bytes) {
    static const auto next = platforms<status_t, Parcel*, size_t, const uint8_t*>(
            "_ZN7android6Parcel14writeByteArrayEmPKh", "_ZN7android6Parcel14writeByteArrayEjPKh");
    Writes entered(this);
    entered.note("i32", static_cast<int32_t>(size));
    entered.note("raw");
    return next(this, size, bytes);
}

int32_t Parcel::readInt32() const {
    static const auto next = platforms<int32_t, const Parcel*>("_ZNK7android6Parcel9readInt32Ev");
    Reads entered(this);
    const int32_t value = next(this);
    entered.note("i32", value);
    return value;
}

bool Parcel::readBool() const {
    static const auto next = platforms<bool, const Parcel*>("_ZNK7android6Parcel8readBoolEv");
    Reads entered(this);
    entered.note("bool");
    return next(this);
}

float Parcel::readFloat() const {
    static const auto next = platforms<float, const Parcel*>("_ZNK7android6Parcel9readFloatEv");
    Reads entered(this);
    entered.note("f32");
    return next(this);
}

String16 Parcel::readString16() const {
    static const auto next =
            platforms<String16, const Parcel*>("_ZNK7android6Parcel12readString16Ev");
    Reads entered(this);
    entered.note("s16");
    return next(this);
}

status_t Parcel::read(void* out, size_t size) const {
    static const auto next = platforms<status_t, const Parcel*, void*, size_t>(
            "_ZNK7android6Parcel4readEPvm", "_ZNK7android6Parcel4readEPvj");
    Reads entered(this);
    entered.note("raw");
    return next(this, out, size);
}

}  // namespace android
