#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "values/Codec.h"

namespace tarn::values {

using protocol::parseLayout;
using ::testing::Optional;

namespace {

Bytes encoded(const Record& record) {
    android::Parcel parcel;
    for (const Value& value : record) encode(value, &parcel);
    return bytesOf(parcel);
}

std::optional<Record> decoded(const Bytes& bytes, const char* layout) {
    return decode(*parcelOf(bytes), parseLayout(layout));
}

struct Case {
    const char* layout;
    Record record;
    Bytes bytes;
};

const Case kCases[] = {
        {"", {}, {}},
        {"i32 a, i32 b", {Value{-2}, Value{0x1402}}, {0xFE, 0xFF, 0xFF, 0xFF, 0x02, 0x14, 0, 0}},
        {"bool a, bool b", {Value{true}, Value{false}}, {1, 0, 0, 0, 0, 0, 0, 0}},
        {"f32 a", {Value{0.5f}}, {0, 0, 0, 0x3F}},
        {"s16 a", {Value{u""}}, {0, 0, 0, 0, 0, 0, 0, 0}},
        {"s16 a", {Value{u"ab"}}, {2, 0, 0, 0, 'a', 0, 'b', 0, 0, 0, 0, 0}},
        {"s16 a", {Value{std::u16string{0xD800}}}, {1, 0, 0, 0, 0x00, 0xD8, 0, 0}},
        {"bytes a", {Value{Bytes{}}}, {0, 0, 0, 0}},
        {"bytes a, i32 b",
         {Value{Bytes{0x0A, 0x0B, 0x0C}}, Value{1}},
         {3, 0, 0, 0, 0x0A, 0x0B, 0x0C, 0, 1, 0, 0, 0}},
        {"[i32 a] list", {Value{List{}}}, {0, 0, 0, 0}},
        {"[i32 a, bool b] list, i32 c",
         {Value{List{{Value{5}, Value{true}}, {Value{6}, Value{false}}}}, Value{7}},
         {2, 0, 0, 0, 5, 0, 0, 0, 1, 0, 0, 0, 6, 0, 0, 0, 0, 0, 0, 0, 7, 0, 0, 0}},
        {"[[i32 a] inner] outer",
         {Value{List{{Value{List{{Value{9}}}}}, {Value{List{}}}}}},
         {2, 0, 0, 0, 1, 0, 0, 0, 9, 0, 0, 0, 0, 0, 0, 0}},
};

TEST(Codec, WritesEveryTypeAsItsLayoutSays) {
    for (const Case& one : kCases) EXPECT_EQ(one.bytes, encoded(one.record)) << one.layout;
}

TEST(Codec, ReadsEveryTypeAsItsLayoutSays) {
    for (const Case& one : kCases) {
        EXPECT_THAT(decoded(one.bytes, one.layout), Optional(one.record)) << one.layout;
    }
}

TEST(Codec, TakesAnyWordButZeroAsTrue) {
    EXPECT_THAT(decoded({0, 0, 0, 0x80}, "bool a"), Optional(Record{Value{true}}));
}

TEST(Codec, ReadsFromThePositionOn) {
    const auto parcel = parcelOf({1, 0, 0, 0, 2, 0, 0, 0});
    parcel->setDataPosition(4);
    EXPECT_THAT(decode(*parcel, parseLayout("i32 a")), Optional(Record{Value{2}}));
}

TEST(Codec, ReadsNothingFromBytesThatAreCut) {
    for (const Case& one : kCases) {
        for (size_t size = 0; size < one.bytes.size(); size++) {
            const Bytes cut(one.bytes.begin(), one.bytes.begin() + size);
            EXPECT_FALSE(decoded(cut, one.layout)) << one.layout << " of " << size;
        }
    }
}

TEST(Codec, ReadsNothingWhereSomethingIsLeftOver) {
    for (const Case& one : kCases) {
        Bytes longer = one.bytes;
        longer.resize(longer.size() + 4);
        EXPECT_FALSE(decoded(longer, one.layout)) << one.layout;
    }
}

TEST(Codec, ReadsNothingFromACountThatCantBe) {
    for (const char* layout : {"s16 a", "bytes a", "[i32 a] list", "[s16 a, i32 b] list"}) {
        // -1, the lowest, the highest, and one more than there is.
        EXPECT_FALSE(decoded({0xFF, 0xFF, 0xFF, 0xFF, 1, 0, 0, 0}, layout)) << layout;
        EXPECT_FALSE(decoded({0, 0, 0, 0x80, 1, 0, 0, 0}, layout)) << layout;
        EXPECT_FALSE(decoded({0xFF, 0xFF, 0xFF, 0x7F, 1, 0, 0, 0}, layout)) << layout;
        EXPECT_FALSE(decoded({5, 0, 0, 0, 1, 0, 0, 0}, layout)) << layout;
    }
    EXPECT_FALSE(decoded({1, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0x7F}, "[[i32 a] inner] outer"));
}

TEST(Codec, ReadsNothingFromATextWithoutItsEnd) {
    EXPECT_FALSE(decoded({1, 0, 0, 0, 'a', 0, 'b', 0}, "s16 a"));
}

}  // namespace

}  // namespace tarn::values
