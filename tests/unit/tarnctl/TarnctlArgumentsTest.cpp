#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "registry/Arguments.h"
#include "registry/Results.h"
#include "tools/tarnctl/board/FaultWords.h"
#include "tools/tarnctl/catalog/NearNames.h"
#include "tools/tarnctl/catalog/PropertyNames.h"
#include "tools/tarnctl/options/LineWords.h"
#include "tools/tarnctl/options/Options.h"
#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/output/Format.h"
#include "values/Value.h"

using namespace tarn::registry;
using namespace tarnctl;
using ::tarn::protocol::Layout;
using ::tarn::protocol::parseLayout;
using ::tarn::values::Bytes;
using ::tarn::values::List;
using ::tarn::values::Record;
using FieldValue = ::tarn::values::Value;
using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Words = std::vector<std::string>;

/** What the refusal says; a test without one fails. */
std::string refusal(const std::function<void()>& refused) {
    try {
        refused();
    } catch (const Failure& failure) {
        return std::to_string(failure.code()) + " " + failure.what();
    } catch (const BadArgument& error) {
        return error.what();
    }
    ADD_FAILURE() << "not refused";
    return "";
}

TEST(TarnctlNumbers, AreDecimalOrHexadecimal) {
    EXPECT_EQ(parseInt("n", "30"), 30);
    EXPECT_EQ(parseInt("n", "-5"), -5);
    EXPECT_EQ(parseInt("n", "0x1E"), 30);
    EXPECT_EQ(parseInt("n", "0X1e"), 30);
    EXPECT_EQ(parseInt("n", "-0x10"), -16);
    EXPECT_EQ(parseInt("n", "2147483647"), 2147483647);
    EXPECT_EQ(parseInt("n", "-2147483648"), -2147483647 - 1);
    EXPECT_EQ(parseInt("n", "010"), 10);
    EXPECT_EQ(parseUnsigned("n", "0xffffffff"), 4294967295u);
}

TEST(TarnctlNumbers, MayBeTheWordOfANegativeOne) {
    EXPECT_EQ(parseInt("n", "0xffffffff"), -1);
    EXPECT_EQ(parseInt("n", "0x80000000"), -2147483647 - 1);
    EXPECT_EQ(parseInt("n", "0x7fffffff"), 2147483647);
}

TEST(TarnctlNumbers, RefuseWhatIsNoneOrBeyondItsType) {
    const std::string accepted =
            "accepted: a number from -2147483648 to 2147483647, decimal or 0x hexadecimal, where "
            "0xffffffff is -1";
    for (const std::string text : {"", "x", "30x", " 30", "3 0", "2147483648", "-2147483649", "0x",
                                   "0x100000000", "1.5", "99999999999999999999", "--5", "0x1g"}) {
        EXPECT_EQ(refusal([&] { parseInt("volume", text); }),
                  "volume: \"" + text + "\" can't be used; " + accepted);
    }
    for (const std::string text : {"-1", "4294967296", "x"}) {
        EXPECT_EQ(refusal([&] { parseUnsigned("type", text); }),
                  "type: \"" + text +
                          "\" can't be used; accepted: a number from 0 to 4294967295, decimal or "
                          "0x hexadecimal");
    }
}

TEST(TarnctlBooleans, HaveFourSpellings) {
    for (const char* text : {"true", "on", "yes", "1"}) EXPECT_TRUE(parseBool("on", text));
    for (const char* text : {"false", "off", "no", "0"}) EXPECT_FALSE(parseBool("on", text));
    for (const std::string text : {"", "2", "True", "maybe"}) {
        EXPECT_EQ(refusal([&] { parseBool("on", text); }),
                  "on: \"" + text +
                          "\" can't be used; accepted: true or false, on or off, yes or no, 1 or "
                          "0");
    }
}

TEST(TarnctlFloats, RefuseWhatIsNoNumber) {
    EXPECT_EQ(parseFloat("level", "0.5"), 0.5f);
    EXPECT_EQ(parseFloat("level", "-2"), -2.0f);
    EXPECT_EQ(refusal([] { parseFloat("level", "half"); }),
              "level: \"half\" can't be used; accepted: a number such as 0.5");
    EXPECT_EQ(refusal([] { parseFloat("level", ""); }),
              "level: \"\" can't be used; accepted: a number such as 0.5");
}

TEST(TarnctlFloats, AreInfiniteOnlyWhenTheySaySo) {
    for (const std::string text : {"1e40", "-1e40"}) {
        EXPECT_EQ(refusal([&] { parseFloat("level", text); }),
                  "level: \"" + text +
                          "\" can't be used; accepted: a number up to 3.4028235e38, or inf");
    }
    EXPECT_EQ(parseFloat("level", "3.4028235e38"), 3.4028235e38f);
    EXPECT_TRUE(std::isinf(parseFloat("level", "inf")));
    EXPECT_EQ(jsonText(Json::Value(parseFloat("level", "-Infinity")), JsonStyle::kShort), "null");
}

TEST(TarnctlTexts, AreUtf8) {
    for (const std::string text : {"", "plain", "\xc3\xa9", "\xe2\x82\xac", "\xf0\x9f\x98\x80",
                                   "\xed\x9f\xbf", "\xee\x80\x80", "\xf4\x8f\xbf\xbf"}) {
        EXPECT_EQ(parseText("name", text), text);
    }
    for (const std::string text :
         {"\xff", "a\x80", "\xc3", "\xc3(", "\xc0\xaf", "\xe0\x80\xaf", "\xed\xa0\x80",
          "\xf0\x80\x80\xaf", "\xf4\x90\x80\x80", "\xf8\x88\x80\x80\x80", "\xe2\x82"}) {
        const std::string said = "name: the text is not UTF-8";
        EXPECT_EQ(refusal([&] { parseText("name", text); }), said);
        EXPECT_EQ(refusal([&] { parseValue("s16", text, parseLayout("s16 text")[0]); }),
                  "s16: the text is not UTF-8");
    }
}

TEST(TarnctlBytes, ArePairsOfHexadecimalDigits) {
    EXPECT_THAT(parseBytes("data", ""), IsEmpty());
    EXPECT_THAT(parseBytes("data", "0a0B ff"), ElementsAre(0x0a, 0x0b, 0xff));
    EXPECT_THAT(parseBytes("data", "0 a"), ElementsAre(0x0a));
    for (const std::string text : {"0", "0g", "0a0", "0\ta"}) {
        EXPECT_EQ(refusal([&] { parseBytes("data", text); }),
                  "data: \"" + text + "\" can't be used; accepted: pairs of hexadecimal digits");
    }
}

TEST(TarnctlOptions, StandAnywhereBeforeTheDashes) {
    const CommandLine line = parseCommandLine(
            {"-q", "call", "audio.setBalance", "--trace", "-5", "--timeout=2.5", "--", "-v"});
    EXPECT_THAT(line.words, ElementsAre("call", "audio.setBalance", "-5", "-v"));
    EXPECT_TRUE(line.options.quiet);
    EXPECT_TRUE(line.options.trace);
    EXPECT_FALSE(line.options.verbose);
    EXPECT_EQ(line.options.timeout, milliseconds(2500));
}

TEST(TarnctlOptions, LeaveNumbersAndALoneDashAlone) {
    EXPECT_THAT(parseCommandLine({"raw", "-1", "f32", "-.5", "-"}).words,
                ElementsAre("raw", "-1", "f32", "-.5", "-"));
}

TEST(TarnctlOptions, ChooseTheStyleOfJson) {
    EXPECT_EQ(parseCommandLine({}).options.json, JsonStyle::kNone);
    EXPECT_EQ(parseCommandLine({"-j"}).options.json, JsonStyle::kShort);
    EXPECT_EQ(parseCommandLine({"--json"}).options.json, JsonStyle::kShort);
    EXPECT_EQ(parseCommandLine({"--json=short"}).options.json, JsonStyle::kShort);
    EXPECT_EQ(parseCommandLine({"--json=pretty"}).options.json, JsonStyle::kPretty);
    EXPECT_EQ(refusal([] { parseCommandLine({"--json=tall"}); }),
              "2 --json: \"tall\" is neither short nor pretty");
}

TEST(TarnctlOptions, MayBeLettersInOneWord) {
    const CommandLine line = parseCommandLine({"monitor", "-qjn3"});
    EXPECT_TRUE(line.options.quiet);
    EXPECT_EQ(line.options.json, JsonStyle::kShort);
    EXPECT_EQ(line.options.count, 3);
    EXPECT_EQ(parseCommandLine({"monitor", "-n", "4"}).options.count, 4);
    EXPECT_TRUE(parseCommandLine({"monitor", "--reconnect"}).options.reconnect);
}

TEST(TarnctlOptions, RefuseWhatTheyDontKnow) {
    const std::string hint = "; put -- before arguments that begin with a dash";
    EXPECT_EQ(refusal([] {
                  parseCommandLine({"call", "--trance"});
              }),
              "2 no option --trance" + hint);
    EXPECT_EQ(refusal([] { parseCommandLine({"call", "-x"}); }), "2 no option -x" + hint);
    EXPECT_EQ(refusal([] { parseCommandLine({"--quiet=yes"}); }), "2 --quiet takes no value");
    EXPECT_EQ(refusal([] { parseCommandLine({"--timeout"}); }),
              "2 --timeout needs a value: --timeout SECONDS");
    EXPECT_EQ(refusal([] {
                  parseCommandLine({"call", "-k"});
              }),
              "2 --keep-going is an option of batch");
    EXPECT_EQ(refusal([] {
                  parseCommandLine({"call", "--reconnect"});
              }),
              "2 --reconnect is an option of monitor");
    EXPECT_EQ(refusal([] {
                  parseBatchLine({"monitor", "--reconnect"}, Options());
              }),
              "2 --reconnect can't be given on a line of a batch");
    EXPECT_EQ(refusal([] {
                  parseCommandLine({"--service", "--board", "b.json"});
              }),
              "2 --service and a simulated board can't be combined");
}

TEST(TarnctlOptions, RefuseAFileWithoutAName) {
    for (const std::string option : {"--board", "--override"}) {
        const std::string said = "2 " + option + " needs a file: " + option + " FILE";
        EXPECT_EQ(refusal([&] { parseCommandLine({option, "", "status"}); }), said);
        EXPECT_EQ(refusal([&] { parseCommandLine({option + "="}); }), said);
    }
}

TEST(TarnctlOptions, AskForQuietEvenWhereTheyCantBeUsed) {
    EXPECT_TRUE(asksForQuiet({"-q", "--bogus"}));
    EXPECT_TRUE(asksForQuiet({"--bogus", "--quiet"}));
    EXPECT_TRUE(asksForQuiet({"call", "-jq"}));
    EXPECT_FALSE(asksForQuiet({"call", "--", "-q"}));
    EXPECT_FALSE(asksForQuiet({"--quick", "q", "-"}));
}

TEST(TarnctlOptions, RefuseValuesThatCantBe) {
    for (const std::string text : {"", "0", "-1", "soon", "1e9", "nan", "inf", "2s"}) {
        EXPECT_EQ(refusal([&] { parseCommandLine({"--timeout=" + text}); }),
                  "2 --timeout: \"" + text +
                          "\" can't be used; accepted: seconds from 0.001 to 1000000, such as 2.5");
    }
    for (const std::string text : {"0", "many"}) {
        EXPECT_EQ(refusal([&] {
                      parseCommandLine({"monitor", "--count", text});
                  }),
                  "2 --count: \"" + text +
                          "\" can't be used; accepted: a number from 1 to 2147483647");
    }
}

TEST(TarnctlOptions, OfABatchHoldForItsLines) {
    Options batch;
    batch.trace = true;
    EXPECT_TRUE(parseBatchLine({"call"}, batch).options.trace);
    EXPECT_EQ(parseBatchLine({"call", "-j"}, batch).options.json, JsonStyle::kShort);
    EXPECT_EQ(refusal([&] {
                  parseBatchLine({"call", "--board", "b"}, batch);
              }),
              "2 --board can't be given on a line of a batch");
    EXPECT_EQ(refusal([&] {
                  parseBatchLine({"call", "-v"}, batch);
              }),
              "2 --verbose can't be given on a line of a batch");
}

TEST(TarnctlWords, AreSplitAsAShellDoes) {
    EXPECT_THAT(splitWords(""), IsEmpty());
    EXPECT_THAT(splitWords("  call\taudio.setVolume  30\r"),
                ElementsAre("call", "audio.setVolume", "30"));
    EXPECT_THAT(splitWords("# all of it"), IsEmpty());
    EXPECT_THAT(splitWords("a#b # c"), ElementsAre("a#b"));
    EXPECT_THAT(splitWords(R"('a "b' "c 'd" "e\"f\\g\h" i\ j '')"),
                ElementsAre("a \"b", "c 'd", "e\"f\\g\\h", "i j", ""));
    EXPECT_THAT(splitWords("pre'fix'ed"), ElementsAre("prefixed"));
    EXPECT_THAT(splitWords(R"('a\\b')"), ElementsAre(R"(a\\b)"));
}

TEST(TarnctlWords, RefuseAnOpenQuote) {
    EXPECT_EQ(refusal([] { splitWords("call 'audio"); }), "2 a ' is not closed");
    EXPECT_EQ(refusal([] { splitWords("call \"audio\\\""); }), "2 a \" is not closed");
}

TEST(TarnctlWords, RefuseABackslashAtTheEnd) {
    EXPECT_EQ(refusal([] { splitWords("call audio.getVolume \\"); }),
              "2 a \\ ends the line; a command stands on one line");
    EXPECT_THAT(splitWords(R"(a\\)"), ElementsAre("a\\"));
}

TEST(TarnctlWords, RefuseANulByte) {
    EXPECT_EQ(refusal([] { splitWords(std::string("call\0 x", 7)); }),
              "2 a line can't have a NUL byte");
}

TEST(TarnctlNames, AreSuggestedWhereTheyAreNear) {
    const Words names{"getVolume", "setVolume", "setAmpMute"};
    EXPECT_EQ(didYouMean("setVolum", names), "; did you mean setVolume, getVolume?");
    EXPECT_EQ(didYouMean("SETVOLUME", names), "; did you mean setVolume, getVolume?");
    EXPECT_EQ(didYouMean("mute", names), "; did you mean setAmpMute?");
    EXPECT_EQ(didYouMean("xyz", names), "");
    EXPECT_EQ(didYouMean("", {"pq"}), "");
    EXPECT_EQ(didYouMean("a", {"pq"}), "");
    EXPECT_EQ(didYouMean("PQ", {"pq"}), "; did you mean pq?");
    // Two letters that changed places with their neighbours, and one more.
    EXPECT_EQ(didYouMean("stevolmue", {"setVolume"}), "; did you mean setVolume?");
    EXPECT_EQ(didYouMean("stevolmuex", {"setVolume"}), "");
    EXPECT_EQ(didYouMean("volume", {"setVolumeOfTheLoudspeaker", "volmeu"}),
              "; did you mean volmeu, setVolumeOfTheLoudspeaker?");
}

TEST(TarnctlProperties, AreGettersAndSetters) {
    EXPECT_EQ(findAccessors("audio.volume", Access::kGet).methods.at(0)->name, "getVolume");
    EXPECT_EQ(findAccessors("audio.volume", Access::kSet).methods.at(0)->name, "setVolume");
    EXPECT_EQ(findAccessors("AudioCtrl.EQMODE", Access::kGet).methods.at(0)->name, "getEQMode");
    EXPECT_EQ(findAccessors("audio.drc", Access::kGet).methods.at(0)->name, "isDrcEnable");
    EXPECT_EQ(findAccessors("audio.drcEnable", Access::kSet).methods.at(0)->name, "enableDrc");
    EXPECT_THAT(findAccessors("audio.nothing", Access::kGet).methods, IsEmpty());
    EXPECT_THAT(findAccessors("nobody.volume", Access::kGet).methods, IsEmpty());
    EXPECT_EQ(refusal([] { refuseProperty("volume", Access::kGet); }),
              "1 no property \"volume\"; one is called CONTROLLER.PROPERTY, such as audio.volume");
    EXPECT_THAT(refusal([] { refuseProperty("audoi.volume", Access::kGet); }),
                testing::StartsWith("1 no controller \"audoi\"; did you mean audio"));
    EXPECT_THAT(refusal([] { refuseProperty("audio.volum", Access::kSet); }),
                testing::StartsWith("1 no property \"audio.volum\" that can be set; did you mean "
                                    "audio.volume"));
}

TEST(TarnctlProperties, AreListedAsTheyCanBeUsed) {
    const auto listed = [](const std::string& name) {
        for (const NamedProperty& property : namedProperties()) {
            if (property.name == name) return property;
        }
        return NamedProperty{"none"};
    };
    EXPECT_EQ(listed("system.usbSuspend").name, "none");
    EXPECT_THAT(findAccessors("system.usbSuspend", Access::kSet).methods, IsEmpty());
    for (const NamedProperty& drc : {listed("audio.drc"), listed("audio.drcEnable")}) {
        ASSERT_TRUE(drc.getter && drc.setter) << drc.name;
        EXPECT_EQ(drc.getter->name, "isDrcEnable");
        EXPECT_EQ(drc.setter->name, "enableDrc");
    }
    for (const NamedProperty& property : namedProperties()) {
        const bool read = !findAccessors(property.name, Access::kGet).methods.empty();
        const bool written = !findAccessors(property.name, Access::kSet).methods.empty();
        EXPECT_EQ(read, property.getter != nullptr) << property.name;
        EXPECT_EQ(written, property.setter != nullptr) << property.name;
    }
}

TEST(TarnctlFaults, AreReadFromWords) {
    const auto read = [](const Words& words) {
        return jsonText(parseFault(words), JsonStyle::kShort);
    };
    EXPECT_EQ(read({"status", "-3"}), R"({"status":-3})");
    EXPECT_EQ(read({"dead"}), R"({"transport":"dead"})");
    EXPECT_EQ(read({"error", "every", "2"}), R"({"every":2,"transport":"error"})");
    EXPECT_EQ(read({"empty"}), R"({"replyBytes":0})");
    EXPECT_EQ(read({"bytes", "8"}), R"({"replyBytes":8})");
    EXPECT_EQ(read({"delay", "250", "probability", "0.5", "seed", "7"}),
              R"({"delayMs":250,"probability":0.5,"seed":7})");
}

TEST(TarnctlFaults, RefuseWordsThatTheyDontKnow) {
    EXPECT_EQ(refusal([] { parseFault({}); }), "2 fault: none given; see tarnctl board --help");
    EXPECT_EQ(refusal([] { parseFault({"broken"}); }),
              "2 fault: \"broken\" can't be used; accepted: status, dead, error, empty, bytes, "
              "delay");
    EXPECT_EQ(refusal([] {
                  parseFault({"dead", "often"});
              }),
              "2 fault: \"often\" can't be used; accepted: every, probability, seed");
    EXPECT_EQ(refusal([] { parseFault({"status"}); }), "2 fault: status needs a number");
    EXPECT_THAT(refusal([] {
                    parseFault({"status", "bad"});
                }),
                testing::StartsWith("status: \"bad\" can't be used"));
}

TEST(TarnctlFaults, RefuseWordsThatContradict) {
    EXPECT_EQ(refusal([] {
                  parseFault({"dead", "every", "2", "probability", "0.5"});
              }),
              "2 fault: every and probability can't be combined");
    EXPECT_EQ(refusal([] {
                  parseFault({"dead", "seed", "3"});
              }),
              "2 fault: seed needs a probability");
    EXPECT_EQ(refusal([] {
                  parseFault({"dead", "every", "2", "every", "3"});
              }),
              "2 fault: every is given twice");
}

TEST(TarnctlText, ShowsFieldsByTheirNames) {
    const Layout layout = parseLayout("bool on, s16 name, [f32 level] levels, bytes data, i32 n");
    const Record record = {FieldValue{true}, FieldValue{u"ab"},
                           FieldValue{List{{FieldValue{0.5f}}, {FieldValue{1.0f}}}},
                           FieldValue{Bytes{0x0a, 0x0b, 0x0c, 0x0d, 0x0e}}, FieldValue{-2}};
    const Json::Value named = namedFields(record, layout);
    EXPECT_THAT(fieldNames(named), ElementsAre("on", "name", "levels", "data", "n"));
    EXPECT_EQ(jsonText(named, JsonStyle::kShort),
              R"({"data":"0a0b0c0d 0e","levels":[{"level":0.5},{"level":1.0}],"n":-2,)"
              R"("name":"ab","on":true})");
}

TEST(TarnctlText, LeavesHalfACharacterOutAsThePlatformDoes) {
    const std::u16string text{u'a', 0xD800, u'b'};
    EXPECT_EQ(namedFields({FieldValue{text}}, parseLayout("s16 text"))["text"].asString(), "ab");
    EXPECT_EQ(toUtf8(android::String16(text.data(), text.size())), "ab");
}

TEST(TarnctlText, ShowsRecordsAndLists) {
    Json::Value inner(Json::objectValue);
    inner["name"] = "a";
    inner["levels"].append(1);
    inner["levels"].append(2);
    Json::Value value(Json::objectValue);
    value["data"] = Json::Value(Json::arrayValue);
    value["list"].append(inner);
    value["result"] = true;
    EXPECT_THAT(plainLines(value), ElementsAre("result: true", "data: []",
                                               "list:", "  - levels: [1, 2]", "    name: a"));
    EXPECT_THAT(plainLines(value["list"][0]["levels"]), ElementsAre("1", "2"));
    EXPECT_THAT(plainLines(Json::Value()), ElementsAre("null"));
}

TEST(TarnctlText, ShowsRecordsInTheirOrder) {
    Json::Value record(Json::objectValue);
    for (const char* name : {"item1", "item2", "item10", "flag", "result"}) {
        appendField(&record, name, 7);
    }
    EXPECT_THAT(plainLines(record),
                ElementsAre("result: 7", "item1: 7", "item2: 7", "item10: 7", "flag: 7"));
    Json::Value list(Json::arrayValue);
    list.append(record);
    const Json::Value copy = list;
    EXPECT_THAT(plainLines(copy[0]), testing::ElementsAreArray(plainLines(record)));
}

TEST(TarnctlText, ShowsFloatsWithTheDigitsTheyHave) {
    EXPECT_THAT(plainLines(Json::Value(0.1f)), ElementsAre("0.1"));
    EXPECT_EQ(jsonText(Json::Value(0.1f), JsonStyle::kShort), "0.1");
    EXPECT_EQ(jsonText(Json::Value(16777.217f), JsonStyle::kShort), "16777.217");
}

TEST(TarnctlText, ShowsCodesInFourDigits) {
    EXPECT_EQ(hexCode(0x1402), "0x1402");
    EXPECT_EQ(hexCode(9), "0x0009");
}

}  // namespace
