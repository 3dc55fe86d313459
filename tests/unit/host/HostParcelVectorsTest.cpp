#include <binder/Parcel.h>
#include <binder/Parcelable.h>
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "tests/unit/host/ParcelHex.h"

namespace android {
namespace {

struct Point : public Parcelable {
    int32_t x = 0;
    int32_t y = 0;

    status_t writeToParcel(Parcel* parcel) const override {
        parcel->writeInt32(x);
        return parcel->writeInt32(y);
    }
    status_t readFromParcel(const Parcel* parcel) override {
        const status_t status = parcel->readInt32(&x);
        return status == OK ? parcel->readInt32(&y) : status;
    }
};

enum class ByteEnum : int8_t { A = 1, B = 2, C = 3 };
enum class IntEnum : int32_t { A = 1, B = -1 };
enum class LongEnum : int64_t { A = 1, B = int64_t{1} << 40 };

TEST(HostParcel, CarriesVectorsOfNumbers) {
    Parcel parcel;
    parcel.writeInt32Vector({1, -1});
    parcel.writeInt64Vector({1, INT64_MIN});
    parcel.writeUint64Vector({UINT64_MAX});
    parcel.writeFloatVector({1.5f, -2.5f});
    parcel.writeDoubleVector({1e300});
    parcel.writeBoolVector({true, false, true});
    parcel.writeCharVector({u'a', u'\xffff'});
    parcel.setDataPosition(0);
    std::vector<int32_t> ints;
    std::vector<int64_t> longs;
    std::vector<uint64_t> unsignedLongs;
    std::vector<float> floats;
    std::vector<double> doubles;
    std::vector<bool> bools;
    std::vector<char16_t> chars;
    EXPECT_EQ(NO_ERROR, parcel.readInt32Vector(&ints));
    EXPECT_EQ(NO_ERROR, parcel.readInt64Vector(&longs));
    EXPECT_EQ(NO_ERROR, parcel.readUint64Vector(&unsignedLongs));
    EXPECT_EQ(NO_ERROR, parcel.readFloatVector(&floats));
    EXPECT_EQ(NO_ERROR, parcel.readDoubleVector(&doubles));
    EXPECT_EQ(NO_ERROR, parcel.readBoolVector(&bools));
    EXPECT_EQ(NO_ERROR, parcel.readCharVector(&chars));
    EXPECT_EQ((std::vector<int32_t>{1, -1}), ints);
    EXPECT_EQ((std::vector<int64_t>{1, INT64_MIN}), longs);
    EXPECT_EQ((std::vector<uint64_t>{UINT64_MAX}), unsignedLongs);
    EXPECT_EQ((std::vector<float>{1.5f, -2.5f}), floats);
    EXPECT_EQ((std::vector<double>{1e300}), doubles);
    EXPECT_EQ((std::vector<bool>{true, false, true}), bools);
    EXPECT_EQ((std::vector<char16_t>{u'a', u'\xffff'}), chars);
    EXPECT_EQ(0u, parcel.dataAvail());
}

TEST(HostParcel, WritesBooleansAndCharactersAsWords) {
    Parcel parcel;
    parcel.writeBoolVector({true, false});
    parcel.writeCharVector({u'a'});
    EXPECT_EQ(
            "02000000"
            "01000000"
            "00000000"
            "01000000"
            "61000000",
            hexOf(parcel));
}

TEST(HostParcel, RefusesACountAboveTheRemainingBytes) {
    Parcel parcel;
    parcel.writeInt32(INT32_MAX);
    parcel.writeInt32(0);
    const auto refused = [&parcel](auto read) {
        parcel.setDataPosition(0);
        return read() == BAD_VALUE && parcel.dataPosition() == 4;
    };
    std::vector<double> doubles;
    std::vector<bool> bools;
    std::vector<String16> strings;
    std::vector<std::string> texts;
    std::vector<sp<IBinder>> binders;
    EXPECT_TRUE(refused([&] { return parcel.readDoubleVector(&doubles); }));
    EXPECT_TRUE(refused([&] { return parcel.readBoolVector(&bools); }));
    EXPECT_TRUE(refused([&] { return parcel.readString16Vector(&strings); }));
    EXPECT_TRUE(refused([&] { return parcel.readUtf8VectorFromUtf16Vector(&texts); }));
    EXPECT_TRUE(refused([&] { return parcel.readStrongBinderVector(&binders); }));
}

TEST(HostParcel, TellsAnAbsentVectorFromAnEmptyOne) {
    Parcel parcel;
    parcel.writeInt32Vector(std::unique_ptr<std::vector<int32_t>>());
    parcel.writeInt32Vector(std::make_unique<std::vector<int32_t>>());
    EXPECT_EQ(
            "ffffffff"
            "00000000",
            hexOf(parcel));
    parcel.setDataPosition(0);
    auto read = std::make_unique<std::vector<int32_t>>(3);
    EXPECT_EQ(NO_ERROR, parcel.readInt32Vector(&read));
    EXPECT_EQ(nullptr, read);
    EXPECT_EQ(NO_ERROR, parcel.readInt32Vector(&read));
    ASSERT_NE(nullptr, read);
    EXPECT_TRUE(read->empty());
}

TEST(HostParcel, ReadsNothingOfAVectorThatIsCutOff) {
    using Strings = std::vector<std::unique_ptr<String16>>;
    using Texts = std::vector<std::unique_ptr<std::string>>;
    Parcel parcel;
    auto words = std::make_unique<std::vector<int32_t>>(3);
    auto flags = std::make_unique<std::vector<bool>>(3);
    auto strings = std::make_unique<Strings>(3);
    auto texts = std::make_unique<Texts>(3);
    auto binders = std::make_unique<std::vector<sp<IBinder>>>(3);
    // Without a count.
    EXPECT_EQ(NOT_ENOUGH_DATA, parcel.readInt32Vector(words.get()));
    EXPECT_EQ(NOT_ENOUGH_DATA, parcel.readInt32Vector(&words));
    EXPECT_EQ(NOT_ENOUGH_DATA, parcel.readBoolVector(&flags));
    EXPECT_EQ(NOT_ENOUGH_DATA, parcel.readString16Vector(&strings));
    EXPECT_EQ(NOT_ENOUGH_DATA, parcel.readUtf8VectorFromUtf16Vector(&texts));
    EXPECT_EQ(NOT_ENOUGH_DATA, parcel.readStrongBinderVector(&binders));
    for (const size_t size :
         {words->size(), flags->size(), strings->size(), texts->size(), binders->size()}) {
        EXPECT_EQ(3u, size);
    }
    // With fewer elements than the count says, though as many bytes.
    for (const int32_t word : {8, 0, 0}) parcel.writeInt32(word);
    const auto cut = [&parcel](auto read) {
        parcel.setDataPosition(0);
        return read();
    };
    EXPECT_EQ(BAD_VALUE, cut([&] { return parcel.readInt32Vector(words.get()); }));
    EXPECT_EQ(BAD_VALUE, cut([&] { return parcel.readInt32Vector(&words); }));
    EXPECT_EQ(BAD_VALUE, cut([&] { return parcel.readBoolVector(&flags); }));
    EXPECT_EQ(NOT_ENOUGH_DATA, cut([&] { return parcel.readString16Vector(&strings); }));
    EXPECT_EQ(NOT_ENOUGH_DATA, cut([&] { return parcel.readUtf8VectorFromUtf16Vector(&texts); }));
}

TEST(HostParcel, CarriesAbsentStringsWithinAVector) {
    auto strings = std::make_unique<std::vector<std::unique_ptr<String16>>>();
    strings->push_back(std::make_unique<String16>("one"));
    strings->push_back(nullptr);
    auto texts = std::make_unique<std::vector<std::unique_ptr<std::string>>>();
    texts->push_back(nullptr);
    texts->push_back(std::make_unique<std::string>("zw\xc3\xb6lf"));
    Parcel parcel;
    EXPECT_EQ(NO_ERROR, parcel.writeString16Vector(strings));
    EXPECT_EQ(NO_ERROR, parcel.writeUtf8VectorAsUtf16Vector(texts));
    parcel.setDataPosition(0);
    std::unique_ptr<std::vector<std::unique_ptr<String16>>> readStrings;
    std::unique_ptr<std::vector<std::unique_ptr<std::string>>> readTexts;
    ASSERT_EQ(NO_ERROR, parcel.readString16Vector(&readStrings));
    ASSERT_EQ(NO_ERROR, parcel.readUtf8VectorFromUtf16Vector(&readTexts));
    ASSERT_EQ(2u, readStrings->size());
    EXPECT_EQ(String16("one"), *(*readStrings)[0]);
    EXPECT_EQ(nullptr, (*readStrings)[1]);
    ASSERT_EQ(2u, readTexts->size());
    EXPECT_EQ(nullptr, (*readTexts)[0]);
    EXPECT_EQ("zw\xc3\xb6lf", *(*readTexts)[1]);
}

TEST(HostParcel, ConvertsUtf8OnItsWay) {
    Parcel parcel;
    EXPECT_EQ(NO_ERROR, parcel.writeUtf8AsUtf16("\xf0\x9f\x98\x80"));
    EXPECT_EQ(
            "02000000"
            "3dd800de"
            "00000000",
            hexOf(parcel));
    parcel.setDataPosition(0);
    std::string text;
    EXPECT_EQ(NO_ERROR, parcel.readUtf8FromUtf16(&text));
    EXPECT_EQ("\xf0\x9f\x98\x80", text);
}

TEST(HostParcel, RefusesUtf8ThatEndsTooSoon) {
    Parcel parcel;
    EXPECT_EQ(BAD_VALUE, parcel.writeUtf8AsUtf16("\xe2\x82"));
    EXPECT_EQ(0u, parcel.dataSize());
}

TEST(HostParcel, CarriesParcelables) {
    Point point;
    point.x = 3;
    point.y = 4;
    Parcel parcel;
    EXPECT_EQ(NO_ERROR, parcel.writeParcelable(point));
    EXPECT_EQ(NO_ERROR, parcel.writeNullableParcelable(std::unique_ptr<Point>()));
    EXPECT_EQ(NO_ERROR, parcel.writeParcelableVector(std::vector<Point>{point, Point()}));
    EXPECT_EQ(
            "01000000"
            "03000000"
            "04000000"
            "00000000"
            "02000000"
            "01000000"
            "03000000"
            "04000000"
            "01000000"
            "00000000"
            "00000000",
            hexOf(parcel));
    parcel.setDataPosition(0);
    Point read;
    EXPECT_EQ(NO_ERROR, parcel.readParcelable(&read));
    EXPECT_EQ(4, read.y);
    auto absent = std::make_unique<Point>();
    EXPECT_EQ(NO_ERROR, parcel.readParcelable(&absent));
    EXPECT_EQ(nullptr, absent);
    std::vector<Point> points;
    EXPECT_EQ(NO_ERROR, parcel.readParcelableVector(&points));
    ASSERT_EQ(2u, points.size());
    EXPECT_EQ(3, points[0].x);
}

TEST(HostParcel, CarriesVectorsOfEnumerations) {
    const std::vector<ByteEnum> bytes = {ByteEnum::A, ByteEnum::B, ByteEnum::C};
    const std::vector<IntEnum> ints = {IntEnum::A, IntEnum::B};
    const std::vector<LongEnum> longs = {LongEnum::A, LongEnum::B};
    Parcel parcel;
    parcel.writeEnumVector(bytes);
    EXPECT_EQ(
            "03000000"
            "01020300",
            hexOf(parcel));
    parcel.writeEnumVector(ints);
    parcel.writeEnumVector(longs);
    parcel.setDataPosition(0);
    std::vector<ByteEnum> readBytes;
    std::vector<IntEnum> readInts;
    std::vector<LongEnum> readLongs;
    EXPECT_EQ(NO_ERROR, parcel.readEnumVector(&readBytes));
    EXPECT_EQ(NO_ERROR, parcel.readEnumVector(&readInts));
    EXPECT_EQ(NO_ERROR, parcel.readEnumVector(&readLongs));
    EXPECT_EQ(bytes, readBytes);
    EXPECT_EQ(ints, readInts);
    EXPECT_EQ(longs, readLongs);
}

}  // namespace
}  // namespace android
