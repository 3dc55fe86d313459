#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "registry/Registry.h"

using tarn::registry::ArgumentValue;
using tarn::registry::BadArgument;
using tarn::registry::findController;
using tarn::registry::findMethods;
using tarn::registry::Kind;
using tarn::registry::Method;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const Method& method(const std::string& controller, const std::string& name) {
    return *findMethods(*findController(controller), name).at(0);
}

/** What the refusal of that text says; a text that is taken fails. */
std::string refusal(const Method& method, const std::string& text) {
    try {
        method.read({text});
    } catch (const BadArgument& error) {
        return error.what();
    }
    ADD_FAILURE() << "not refused";
    return "";
}

TEST(Parameters, FillTheMemberOfTheirKind) {
    EXPECT_EQ(method("audio", "setVolume").read({"-5"})[0].number, -5);
    EXPECT_EQ(method("gpio", "setGpioDirInput").read({"4294967295"})[0].number, 4294967295);
    EXPECT_TRUE(method("audio", "enableDrc").read({"on"})[0].flag);
    EXPECT_EQ(method("aiNoise", "setAiNoise").read({"0.5"})[0].real, 0.5f);
    EXPECT_EQ(method("network", "setMcuDhcpIp").read({"a b"})[0].text, "a b");
    EXPECT_THAT(method("pcModule", "sendSerialData").read({"0a ff"})[0].bytes,
                ElementsAre(0x0a, 0xff));
    EXPECT_THAT(method("pms", "setPmsWakeupSources").read({"1,-2,0x3"})[0].numbers,
                ElementsAre(1, -2, 3));
    EXPECT_THAT(method("landscape", "setLandscapeAppList").read({"a,,b"})[0].texts,
                ElementsAre("a", "", "b"));
}

TEST(Parameters, TellTheirKind) {
    EXPECT_EQ(method("audio", "setVolume").arguments[0].kind(), Kind::kInt);
    EXPECT_EQ(method("system", "setSelinuxMode").arguments[0].kind(), Kind::kInt);
    EXPECT_EQ(method("gpio", "setGpioDirInput").arguments[0].kind(), Kind::kUnsigned);
    EXPECT_EQ(method("touch", "addNoTouchArea").arguments[0].kind(), Kind::kInts);
    EXPECT_EQ(method("landscape", "setLandscapeAppList").arguments[0].kind(), Kind::kTexts);
}

TEST(Parameters, OfListsTakeAnEmptyTextForAnEmptyList) {
    EXPECT_THAT(method("pms", "setPmsWakeupSources").read({""})[0].numbers, IsEmpty());
    EXPECT_THAT(method("landscape", "setLandscapeAppList").read({""})[0].texts, IsEmpty());
}

TEST(Parameters, OfListsNameThePartThatTheyRefuse) {
    EXPECT_THAT(refusal(method("pms", "setPmsWakeupSources"), "1,x"),
                testing::StartsWith("sources: \"x\" can't be used; accepted: a number"));
    EXPECT_EQ(refusal(method("landscape", "setLandscapeAppList"), "a,\xff"),
              "apps: the text is not UTF-8");
}

TEST(Parameters, OfRecordsTakeAllTheirFields) {
    const Method& add = method("touch", "addNoTouchArea");
    EXPECT_THAT(add.read({"7,1,2,3,4"})[0].numbers, ElementsAre(7, 1, 2, 3, 4));
    for (const std::string text : {"7,1,2,3", "7,1,2,3,4,5"}) {
        EXPECT_EQ(refusal(add, text),
                  "area: \"" + text + "\" can't be used; accepted: id,x1,y1,x2,y2");
    }
}

TEST(Results, TellTheirKind) {
    EXPECT_EQ(method("audio", "getVolume").resultKind, Kind::kInt);
    EXPECT_EQ(method("avManager", "get_av_signal_format").resultKind, Kind::kRecord);
    EXPECT_EQ(method("touch", "getAllNoTouchAreas").resultKind, Kind::kRecords);
    EXPECT_EQ(method("smartPenMode", "getSupportSmartPenModeList").resultKind, Kind::kInts);
}

}  // namespace
