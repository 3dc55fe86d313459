#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "values/Hex.h"

namespace tarn::values {

using ::testing::Optional;

namespace {

TEST(Hex, IsAPairForEachByte) {
    EXPECT_EQ("", hexFromBytes({}));
    EXPECT_EQ("000f10a9ff", hexFromBytes({0x00, 0x0F, 0x10, 0xA9, 0xFF}));
}

TEST(Hex, HasABlankAfterEveryWord) {
    EXPECT_EQ("", hexWords({}));
    EXPECT_EQ("02140000", hexWords({0x02, 0x14, 0, 0}));
    EXPECT_EQ("02140000 1e00", hexWords({0x02, 0x14, 0, 0, 0x1E, 0}));
}

TEST(Hex, IsReadWithBlanksAnywhere) {
    EXPECT_THAT(bytesFromHex(""), Optional(Bytes{}));
    EXPECT_THAT(bytesFromHex("  "), Optional(Bytes{}));
    EXPECT_THAT(bytesFromHex("0a0BfF09"), Optional(Bytes{0x0A, 0x0B, 0xFF, 0x09}));
    EXPECT_THAT(bytesFromHex(" 0a 0B "), Optional(Bytes{0x0A, 0x0B}));
    EXPECT_THAT(bytesFromHex("0 a"), Optional(Bytes{0x0A}));
}

TEST(Hex, IsNoneWithHalfAPairOrAnotherCharacter) {
    for (const char* text : {"0", "0a0", "0g", "g0", "0x0a", "0a,0b", "0a\t0b", "/0", ":0", "@0",
                             "`0", "-1", "\xc3\xa9"}) {
        EXPECT_FALSE(bytesFromHex(text)) << text;
    }
    EXPECT_FALSE(bytesFromHex(std::string("0\0a", 3)));
}

}  // namespace

}  // namespace tarn::values
