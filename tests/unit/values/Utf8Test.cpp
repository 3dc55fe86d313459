#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "values/Utf8.h"

namespace tarn::values {

using ::testing::Optional;

namespace {

struct Pair {
    std::string utf8;
    std::u16string utf16;
};

TEST(Utf8, IsUtf16ToAndFro) {
    // The first and the last character of each length.
    const Pair pairs[] = {
            {"", u""},
            {std::string("a\0b", 3), std::u16string(u"a\0b", 3)},
            {"\x7f", {0x7F}},
            {"\xc2\x80", {0x80}},
            {"\xdf\xbf", {0x7FF}},
            {"\xe0\xa0\x80", {0x800}},
            {"\xed\x9f\xbf", {0xD7FF}},
            {"\xee\x80\x80", {0xE000}},
            {"\xef\xbf\xbf", {0xFFFF}},
            {"\xf0\x90\x80\x80", {0xD800, 0xDC00}},
            {"\xf0\x9f\x98\x80", {0xD83D, 0xDE00}},
            {"\xf4\x8f\xbf\xbf", {0xDBFF, 0xDFFF}},
    };
    for (const Pair& pair : pairs) {
        EXPECT_THAT(utf16FromUtf8(pair.utf8), Optional(pair.utf16)) << pair.utf8;
        EXPECT_EQ(pair.utf8, utf8FromUtf16(pair.utf16)) << pair.utf8;
        EXPECT_TRUE(isUtf8(pair.utf8)) << pair.utf8;
    }
}

void expectRefused(const std::string& text) {
    EXPECT_FALSE(utf16FromUtf8(text)) << text;
    EXPECT_FALSE(isUtf8(text)) << text;
}

TEST(Utf8, RefusesWhatCouldBeWrittenShorter) {
    for (const char* text : {"\xc0\xaf", "\xc1\xbf", "\xe0\x80\xaf", "\xe0\x9f\xbf",
                             "\xf0\x80\x80\xaf", "\xf0\x8f\xbf\xbf"}) {
        expectRefused(text);
    }
    expectRefused(std::string("\xc0\x80", 2));
}

TEST(Utf8, RefusesSurrogatesAndWhatIsBeyondTheLastCharacter) {
    for (const char* text : {"\xed\xa0\x80", "\xed\xaf\xbf", "\xed\xb0\x80", "\xed\xbf\xbf",
                             "\xed\xa0\xbd\xed\xb8\x80", "\xf4\x90\x80\x80", "\xf5\x80\x80\x80",
                             "\xf8\x88\x80\x80\x80", "\xfe", "\xff"}) {
        expectRefused(text);
    }
}

TEST(Utf8, RefusesWhatIsCutOrOutOfPlace) {
    for (const char* text : {"\xc3", "a\xe2\x82", "\xf0\x9f\x98", "\xc3(", "\xe2(\xa1", "\xe2\x82(",
                             "\xf0\x9f\x98(", "\x80", "a\xbf", "\xc3\xa9\xa9"}) {
        expectRefused(text);
    }
}

TEST(Utf8, ShowsASurrogateWithoutItsOtherHalfAsTheReplacement) {
    EXPECT_EQ("a\xef\xbf\xbd", utf8FromUtf16({u'a', 0xD800}));
    EXPECT_EQ(
            "\xef\xbf\xbd"
            "b",
            utf8FromUtf16({0xDC00, u'b'}));
    EXPECT_EQ("\xef\xbf\xbd\xef\xbf\xbd", utf8FromUtf16({0xDC00, 0xD800}));
    EXPECT_EQ("\xef\xbf\xbd\xf0\x90\x80\x80", utf8FromUtf16({0xD800, 0xD800, 0xDC00}));
}

}  // namespace

}  // namespace tarn::values
