#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <tarn/TarnManager.h>
#include <unistd.h>

#include <fstream>
#include <sstream>

#include "host/HostServiceManager.h"
#include "tools/tarnctl/Run.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace {

/** A property of each type, with a command that sets it. */
constexpr char kBoard[] = R"({
  "name": "values",
  "properties": {
    "a.int": {"type": "i32", "initial": 20},
    "a.bool": {"type": "bool", "initial": false},
    "a.float": {"type": "f32", "initial": 0.25},
    "a.text": {"type": "s16", "initial": "none"},
    "a.bytes": {"type": "bytes", "initial": "77"},
    "a.list": {"type": "list", "initial": ["none"]}
  },
  "commands": {
    "CMD_AUDIO_SET_VOLUME": {"set": "a.int"},
    "CMD_AUDIO_ENABLE_DRC": {"set": "a.bool"},
    "CMD_AI_NOISE_SET_AI_NOISE": {"set": "a.float"},
    "CMD_BITMOTION_SET_WAN1_ADDRESS": {"set": "a.text"},
    "CMD_BURN_MAC_SET_MAC_BYTES": {"set": {"a.bytes": "mac"}, "reply": [1]},
    "CMD_LANDSCAPE_SET_APP_LIST": {"set": "a.list", "reply": [0, true]}
  }
})";

struct Ran {
    int code;
    std::string out;
    std::string err;
};

/** Runs the lines as a batch on a board of their own. */
Ran runLines(const std::string& lines) {
    std::istringstream in(lines);
    std::ostringstream out;
    std::ostringstream err;
    const int code = tarnctl::run({"-q", "-k", "batch"}, tarnctl::Streams{in, out, err});
    android::host::removeAllServices();
    // The end of any manager drops the process's reference to the hardware service.
    android::sp<android::ITarnManager>(new android::TarnManager).clear();
    return Ran{code, out.str(), err.str()};
}

/** One type's property and the commands that set it, each up to the value. */
struct Place {
    std::string property;
    std::string call;
    std::string raw;  // none for a list

    std::vector<std::string> ways() const {
        std::vector<std::string> ways{"board set " + property, "set " + property, "call " + call};
        if (!raw.empty()) ways.push_back("raw " + raw);
        return ways;
    }
};

const Place kInt{"a.int", "audio.setVolume", "CMD_AUDIO_SET_VOLUME i32"};
const Place kBool{"a.bool", "audio.enableDrc", "CMD_AUDIO_ENABLE_DRC bool"};
const Place kFloat{"a.float", "aiNoise.setAiNoise", "CMD_AI_NOISE_SET_AI_NOISE f32"};
const Place kText{"a.text", "bitmotion.setWan1Address", "CMD_BITMOTION_SET_WAN1_ADDRESS s16"};
const Place kBytes{"a.bytes", "burnMac.setBurnMacBytes 1",
                   "CMD_BURN_MAC_SET_MAC_BYTES i32 1 bytes"};
const Place kList{"a.list", "landscape.setLandscapeAppList", ""};

struct Form {
    const Place& place;
    const char* text;
    const char* value;  // that the board has then, as JSON; null if the text is refused
};

const Form kForms[] = {
        {kInt, "7", "7"},
        {kInt, "+7", "7"},
        {kInt, "-5", "-5"},
        {kInt, "0x1E", "30"},
        {kInt, "-0x10", "-16"},
        {kInt, "0xffffffff", "-1"},
        {kInt, "0x80000000", "-2147483648"},
        {kInt, "2147483647", "2147483647"},
        {kInt, "2147483648", nullptr},
        {kInt, "0x100000000", nullptr},
        {kInt, "''", nullptr},
        {kInt, "' 7'", nullptr},
        {kInt, "1.0", nullptr},
        {kInt, "yes", nullptr},
        {kBool, "true", "true"},
        {kBool, "on", "true"},
        {kBool, "yes", "true"},
        {kBool, "1", "true"},
        {kBool, "false", "false"},
        {kBool, "off", "false"},
        {kBool, "no", "false"},
        {kBool, "0", "false"},
        {kBool, "2", nullptr},
        {kBool, "Yes", nullptr},
        {kFloat, "0.5", "0.5"},
        {kFloat, "-.5", "-0.5"},
        {kFloat, "+1e3", "1000.0"},
        {kFloat, "0x10", "16.0"},
        {kFloat, "1e-50", "0.0"},
        {kFloat, "1e40", nullptr},
        {kFloat, "half", nullptr},
        {kText, "yes", R"("yes")"},
        {kText, "''", R"("")"},
        {kText, "0x10", R"("0x10")"},
        {kText, "\xe2\x82\xac", "\"\xe2\x82\xac\""},
        {kText, "\xed\xa0\x80", nullptr},
        {kBytes, "''", R"("")"},
        {kBytes, "0a0B", R"("0a0b")"},
        {kBytes, "'0a 0b'", R"("0a0b")"},
        {kBytes, "'0 a'", R"("0a")"},
        {kBytes, "0a0", nullptr},
        {kBytes, "0g", nullptr},
        {kList, "x", R"([["x"]])"},
        {kList, "x,y", R"([["x"],["y"]])"},
        {kList, "''", "[]"},
};

class TarnctlValues : public testing::Test {
  protected:
    TarnctlValues() : mBoardFile(testing::TempDir() + "/tarnctl_values.json") {
        std::ofstream(mBoardFile) << kBoard;
        setenv("TARN_BOARD", mBoardFile.c_str(), 1);
    }

    ~TarnctlValues() override { unlink(mBoardFile.c_str()); }

    const std::string mBoardFile;
};

TEST_F(TarnctlValues, AreReadAlikeByEveryCommand) {
    for (const Form& form : kForms) {
        if (form.value == nullptr) continue;
        for (const std::string& way : form.place.ways()) {
            const std::string line = way + " -- " + form.text;
            const Ran ran = runLines(line + "\nboard get -j " + form.place.property + "\n");
            EXPECT_EQ(ran.code, 0) << line;
            EXPECT_THAT(ran.out, testing::EndsWith(std::string(form.value) + "\n")) << line;
        }
    }
}

TEST_F(TarnctlValues, AreRefusedAlikeByEveryCommand) {
    for (const Form& form : kForms) {
        if (form.value != nullptr) continue;
        for (const std::string& way : form.place.ways()) {
            const std::string line = way + " -- " + form.text;
            const std::string get = "board get -j " + form.place.property + "\n";
            const Ran ran = runLines(line + "\n" + get);
            EXPECT_EQ(ran.code, 2) << line;
            EXPECT_EQ(ran.out, runLines(get).out) << line;
        }
    }
}

TEST_F(TarnctlValues, OfABoardAreThoseThatJsonHas) {
    for (const std::string text : {"inf", "-inf", "nan"}) {
        EXPECT_EQ(runLines("board set a.float -- " + text + "\n").code, 2) << text;
        EXPECT_EQ(runLines("call aiNoise.setAiNoise -- " + text + "\n").code, 0) << text;
        EXPECT_EQ(runLines("raw CMD_AI_NOISE_SET_AI_NOISE f32 -- " + text + "\n").code, 0) << text;
    }
}

TEST_F(TarnctlValues, AreEventsTypesAndBytesToo) {
    EXPECT_EQ(runLines("board raise 0xffffffff '0 a' 0b\n").code, 0);
    EXPECT_EQ(runLines("board raise +7\n").code, 0);
    EXPECT_EQ(runLines("board raise 0x100000000\n").code, 2);
    EXPECT_EQ(runLines("board raise 7 0a0\n").code, 2);
}

}  // namespace
