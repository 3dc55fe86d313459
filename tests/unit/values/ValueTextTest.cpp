#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "values/ValueText.h"

namespace tarn::values {

using protocol::parseLayout;
using protocol::Type;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

constexpr int32_t kLowest = std::numeric_limits<int32_t>::min();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

/** "reason; accepted: list" of what is refused. */
std::string refusal(const std::function<void()>& refused) {
    try {
        refused();
    } catch (const TextError& error) {
        return error.what() + (error.accepted().empty() ? "" : "; accepted: " + error.accepted());
    }
    ADD_FAILURE() << "not refused";
    return "";
}

Value read(const std::string& text, const char* layout) {
    return valueFromText(text, parseLayout(layout)[0]);
}

TEST(ValueText, ReadsWholeNumbers) {
    const std::pair<const char*, int32_t> forms[] = {
            {"30", 30},
            {"-5", -5},
            {"+5", 5},
            {"010", 10},
            {"0", 0},
            {"-0", 0},
            {"0x1E", 30},
            {"0X1e", 30},
            {"-0x10", -16},
            {"+0x10", 16},
            {"0x0000000000a", 10},
            {"2147483647", 2147483647},
            {"-2147483648", kLowest},
            {"0x7fffffff", 2147483647},
            {"-0x80000000", kLowest},
    };
    for (const auto& [text, number] : forms) EXPECT_EQ(number, intFromText(text)) << text;
}

TEST(ValueText, ReadsANegativeNumbersWord) {
    EXPECT_EQ(-1, intFromText("0xffffffff"));
    EXPECT_EQ(kLowest, intFromText("0x80000000"));
    EXPECT_EQ(-2, intFromText("0XFFFFFFFE"));
}

TEST(ValueText, RefusesWhatIsNoWholeNumber) {
    for (const std::string text :
         {"",    "-",  "+",   "x",    "loud", "30x",   " 30", "30 ", "3 0", "1.5",
          "1e3", "0x", "-0x", "0x1g", "0x-1", "0x0x1", "--5", "+-5", "-+5", "1,2"}) {
        EXPECT_EQ("'" + text +
                          "' is no whole number; accepted: a number from -2147483648 to "
                          "2147483647, decimal or 0x hexadecimal, where 0xffffffff is -1",
                  refusal([&] { intFromText(text); }));
        EXPECT_EQ("'" + text +
                          "' is no whole number; accepted: a number from 0 to 4294967295, decimal "
                          "or 0x hexadecimal",
                  refusal([&] { unsignedFromText(text); }));
    }
    EXPECT_THROW(intFromText(std::string("5\0", 2)), TextError);
}

TEST(ValueText, RefusesNumbersBeyondTheirWord) {
    for (const std::string text :
         {"2147483648", "4294967295", "-2147483649", "0x100000000", "-0x80000001", "-0xffffffff",
          "99999999999999999999", "-99999999999999999999", "0xfffffffffffffffff"}) {
        EXPECT_THAT(refusal([&] { intFromText(text); }),
                    testing::StartsWith("'" + text + "' is beyond 32 bits; accepted: a number"));
    }
    for (const std::string text :
         {"-1", "-0x1", "4294967296", "0x100000000", "18446744073709551616"}) {
        EXPECT_THAT(refusal([&] { unsignedFromText(text); }),
                    testing::StartsWith("'" + text + "' is beyond 32 bits; accepted: a number"));
    }
}

TEST(ValueText, ReadsUnsignedNumbers) {
    EXPECT_EQ(0u, unsignedFromText("0"));
    EXPECT_EQ(0u, unsignedFromText("-0"));
    EXPECT_EQ(7u, unsignedFromText("+7"));
    EXPECT_EQ(4294967295u, unsignedFromText("4294967295"));
    EXPECT_EQ(4294967295u, unsignedFromText("0xffffffff"));
}

TEST(ValueText, ReadsFourPairsOfBooleans) {
    for (const char* text : {"true", "on", "yes", "1"}) EXPECT_TRUE(boolFromText(text)) << text;
    for (const char* text : {"false", "off", "no", "0"}) EXPECT_FALSE(boolFromText(text)) << text;
    for (const std::string text : {"", "2", "-1", "True", "ON", "maybe", " on", "0x1"}) {
        EXPECT_EQ("'" + text +
                          "' is neither true nor false; accepted: true or false, on or off, yes or "
                          "no, 1 or 0",
                  refusal([&] { boolFromText(text); }));
    }
}

TEST(ValueText, ReadsFloats) {
    const std::pair<const char*, float> forms[] = {
            {"0.5", 0.5f},      {"-2", -2.0f},
            {"+.5", 0.5f},      {"5.", 5.0f},
            {"1e3", 1e3f},      {"0x10", 16.0f},
            {"1e-50", 0.0f},    {"3.4028235e38", 3.4028235e38f},
            {"inf", kInfinity}, {"-Infinity", -kInfinity},
    };
    for (const auto& [text, number] : forms) EXPECT_EQ(number, floatFromText(text)) << text;
    EXPECT_TRUE(std::isnan(floatFromText("nan")));
}

TEST(ValueText, RefusesWhatIsNoFloat) {
    for (const std::string text : {"", "half", " 1", "1 ", "1,5", "1.5x", "--1", "0.5.5"}) {
        EXPECT_EQ("'" + text + "' is not a number; accepted: a number such as 0.5",
                  refusal([&] { floatFromText(text); }));
    }
    for (const std::string text : {"1e40", "-1e40"}) {
        EXPECT_EQ("'" + text + "' is beyond f32; accepted: a number up to 3.4028235e38, or inf",
                  refusal([&] { floatFromText(text); }));
    }
}

TEST(ValueText, ReadsTextsInUtf8) {
    EXPECT_EQ(u"", utf16FromText(""));
    EXPECT_EQ(u" 0x1, [\u20ac]\U0001F600", utf16FromText(" 0x1, [\xe2\x82\xac]\xf0\x9f\x98\x80"));
    EXPECT_EQ("text is not UTF-8", refusal([] { utf16FromText("\xed\xa0\x80"); }));
}

TEST(ValueText, ReadsBytesFromHexadecimalPairs) {
    EXPECT_THAT(bytesFromText("0a0B f f"), ElementsAre(0x0A, 0x0B, 0xFF));
    EXPECT_EQ(
            "text is not made of hexadecimal pairs (bytes); accepted: pairs of hexadecimal digits",
            refusal([] { bytesFromText("0a0"); }));
}

TEST(ValueText, SplitsAListAtItsCommas) {
    EXPECT_THAT(splitList(""), IsEmpty());
    EXPECT_THAT(splitList("a"), ElementsAre("a"));
    EXPECT_THAT(splitList("a,,b,"), ElementsAre("a", "", "b", ""));
}

TEST(ValueText, ReadsAValueOfEachType) {
    EXPECT_EQ(Value{-1}, read("0xffffffff", "i32 a"));
    EXPECT_EQ(Value{true}, read("yes", "bool a"));
    EXPECT_EQ(Value{0.5f}, read("0.5", "f32 a"));
    EXPECT_EQ(Value{u"on"}, read("on", "s16 a"));
    EXPECT_EQ((Value{Bytes{1, 2}}), read("01 02", "bytes a"));
}

TEST(ValueText, ReadsASimpleListFromCommasOrJson) {
    const Value numbers{List{{Value{1}}, {Value{-1}}}};
    EXPECT_EQ(numbers, read("1,0xffffffff", "[i32 a] list"));
    EXPECT_EQ(numbers, read(" [1, -1]", "[i32 a] list"));
    EXPECT_EQ(numbers, read("[[1], [-1]]", "[i32 a] list"));
    EXPECT_EQ(Value{List{}}, read("", "[i32 a] list"));
    EXPECT_EQ(Value{List{}}, read("[]", "[i32 a] list"));
    EXPECT_EQ((Value{List{{Value{true}}, {Value{false}}}}), read("on,no", "[bool a] list"));
    EXPECT_EQ((Value{List{{Value{u"a b"}}, {Value{u""}}}}), read("a b,", "[s16 a] list"));
    EXPECT_THAT(refusal([] { read("1,x", "[i32 a] list"); }), HasSubstr("'x' is no whole number"));
}

TEST(ValueText, ReadsAListOfRecordsFromJson) {
    EXPECT_EQ((Value{List{{Value{u"a"}, Value{true}}}}),
              read(R"([["a", true]])", "[s16 a, bool b] list"));
    EXPECT_EQ((Value{List{{Value{List{{Value{1}}}}}}}), read("[[[1]]]", "[[i32 a] b] list"));
    for (const char* text : {"", "a,on", "[", "1", "[1,]", R"([["a", "on"]])"}) {
        EXPECT_THROW(read(text, "[s16 a, bool b] list"), std::invalid_argument) << text;
    }
    EXPECT_THROW(read("1,2", "[[i32 a] b] list"), std::invalid_argument);
    EXPECT_THROW(read("[a", "[s16 a] list"), std::invalid_argument);
}

}  // namespace

}  // namespace tarn::values
