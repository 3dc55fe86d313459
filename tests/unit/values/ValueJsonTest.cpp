#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <json/writer.h>

#include <limits>

#include "values/JsonError.h"
#include "values/StrictJson.h"
#include "values/ValueJson.h"

namespace tarn::values {

using protocol::parseLayout;
using ::testing::HasSubstr;
using ::testing::ThrowsMessage;

namespace {

Value read(const std::string& json, const char* layout) {
    return valueFromJson(parseJson(json), parseLayout(layout)[0]);
}

std::string written(const Value& value) {
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    builder["emitUTF8"] = true;
    return Json::writeString(builder, toJson(value));
}

struct Case {
    const char* layout;
    Value value;
    const char* json;
};

const Case kCases[] = {
        {"i32 a", Value{std::numeric_limits<int32_t>::min()}, "-2147483648"},
        {"i32 a", Value{2147483647}, "2147483647"},
        {"bool a", Value{true}, "true"},
        {"bool a", Value{false}, "false"},
        {"f32 a", Value{0.1f}, "0.10000000000000001"},
        {"f32 a", Value{16777.217f}, "16777.217000000001"},
        {"f32 a", Value{-2.0f}, "-2.0"},
        {"s16 a", Value{u""}, R"("")"},
        {"s16 a", Value{u"a\u20ac\U0001F600"}, "\"a\xe2\x82\xac\xf0\x9f\x98\x80\""},
        {"bytes a", Value{Bytes{}}, R"("")"},
        {"bytes a", Value{Bytes{0x0A, 0xFF, 0, 1, 2}}, R"("0aff000102")"},
        {"[i32 a] list", Value{List{}}, "[]"},
        {"[i32 a] list", Value{List{{Value{1}}, {Value{2}}}}, "[[1],[2]]"},
        {"[s16 a, bytes b] list", Value{List{{Value{u"x"}, Value{Bytes{7}}}}}, R"([["x","07"]])"},
        {"[[bool a] b, i32 c] list", Value{List{{Value{List{{Value{true}}}}, Value{3}}}},
         "[[[[true]],3]]"},
};

TEST(ValueJson, IsWrittenAndReadBack) {
    for (const Case& one : kCases) {
        EXPECT_EQ(one.json, written(one.value)) << one.layout;
        EXPECT_EQ(one.value, read(one.json, one.layout)) << one.layout;
    }
}

TEST(ValueJson, HasTheFewestDigitsOfAFloat) {
    EXPECT_EQ(0.1, toJson(Value{0.1f}).asDouble());
    EXPECT_EQ(16777.217, toJson(Value{16777.217f}).asDouble());
    EXPECT_EQ(1e-45, toJson(Value{1e-45f}).asDouble());
    EXPECT_EQ(3.4028235e38, toJson(Value{std::numeric_limits<float>::max()}).asDouble());
}

TEST(ValueJson, HasTheReplacementForHalfACharacter) {
    EXPECT_EQ("\"\xef\xbf\xbd\"", written(Value{std::u16string{0xD800}}));
}

TEST(ValueJson, ReadsOtherFormsToo) {
    EXPECT_EQ(Value{2.0f}, read("2", "f32 a"));
    EXPECT_EQ((Value{Bytes{0, 255}}), read("[0, 255]", "bytes a"));
    EXPECT_EQ((Value{Bytes{0x0A, 0xBC}}), read(R"(" 0 A bc")", "bytes a"));
    EXPECT_EQ((Value{List{{Value{1}}, {Value{2}}}}), read("[1, [2]]", "[i32 a] list"));
}

struct Refusal {
    const char* json;
    const char* layout;
    const char* reason;
};

TEST(ValueJson, RefusesWhatDoesNotFitTheField) {
    const Refusal refusals[] = {
            {"true", "i32 a", "needs a whole number (i32)"},
            {"1.0", "i32 a", "needs a whole number (i32)"},
            {R"("1")", "i32 a", "needs a whole number (i32)"},
            {"null", "i32 a", "needs a whole number (i32)"},
            {"2147483648", "i32 a", "number is beyond 32 bits"},
            {"-2147483649", "i32 a", "number is beyond 32 bits"},
            {"1", "bool a", "needs true or false (bool)"},
            {R"("yes")", "bool a", "needs true or false (bool)"},
            {"true", "f32 a", "needs a number (f32)"},
            {"1e39", "f32 a", "number is beyond f32"},
            {"1", "s16 a", "needs a text (s16)"},
            {"\"\xff\"", "s16 a", "text is not UTF-8"},
            {"1", "bytes a", "needs an array of numbers or a text (bytes)"},
            {R"("0")", "bytes a", "text is not made of hexadecimal pairs (bytes)"},
            {"[256]", "bytes a", "needs a number from 0 to 255 (bytes)"},
            {"[-1]", "bytes a", "needs a number from 0 to 255 (bytes)"},
            {"[1.5]", "bytes a", "needs a number from 0 to 255 (bytes)"},
            {"1", "[i32 a] list", "needs an array of records [i32 a]"},
            {"[1]", "[i32 a, i32 b] list", "needs an array for each record [i32 a, i32 b]"},
            {"[[1]]", "[i32 a, i32 b] list", "record has 1 fields, not the 2 of [i32 a, i32 b]"},
            {"[[1, true]]", "[i32 a, i32 b] list", "needs a whole number (i32)"},
    };
    for (const Refusal& one : refusals) {
        EXPECT_THAT([&one] { read(one.json, one.layout); }, ThrowsMessage<JsonError>(one.reason))
                << one.json << " for " << one.layout;
    }
}

TEST(ValueJson, TellsWhereARefusalStands) {
    try {
        read("[[1], [true]]", "[i32 a] list");
        FAIL() << "not refused";
    } catch (const JsonError& error) {
        EXPECT_EQ(7, error.offset());
    }
}

TEST(StrictJson, IsOneDocument) {
    EXPECT_EQ(5, parseJson(" 5 ").asInt());
    for (const char* text :
         {"", "[", "1 2", "[1,]", "{\"a\":1,\"a\":2}", "// x\n1", "'a'", "nan"}) {
        EXPECT_THAT([text] { parseJson(text); },
                    ThrowsMessage<std::invalid_argument>(HasSubstr("not JSON: ")))
                << text;
    }
    EXPECT_THROW(parseJson(std::string(1000, '[')), std::invalid_argument);
}

}  // namespace

}  // namespace tarn::values
