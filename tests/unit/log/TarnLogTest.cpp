#include <android/log.h>
#include <cutils/properties.h>
#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <cstdlib>
#include <string>

#include "tests/support/LogCapture.h"

using tarn::test::LogCapture;
using tarn::test::LogLine;

namespace {

constexpr char kProperty[] = "persist.vendor.tarn.loglevel";

std::string property() {
    char value[PROPERTY_VALUE_MAX] = {};
    property_get(kProperty, value, "");
    return value;
}

/** Sets the filter for a test and puts the default back. */
class FilterLevel {
  public:
    explicit FilterLevel(unsigned int level) { setLogLevel(level); }
    ~FilterLevel() { setLogLevel(TARN_LOG_WARN); }
};

LogLine writtenAt(unsigned int level) {
    LogCapture log;
    EXPECT_EQ(TarnLog(level, "tag", "function", 12, "text %d", 5), 0);
    const auto lines = log.lines();
    EXPECT_EQ(lines.size(), 1u);
    return lines.empty() ? LogLine{} : lines[0];
}

TEST(TarnLog, SuppressesDebugAndWritesWarningsBeforeAnythingIsSet) {
    EXPECT_EQ(getLogLevel(2), TARN_LOG_WARN);
    EXPECT_EQ(TarnLog(TARN_LOG_DEBUG, "tag", "f", 1, "hidden"), -1);
    EXPECT_EQ(TarnLog(TARN_LOG_WARN, "tag", "f", 1, "shown"), 0);
}

TEST(TarnLog, DropsALineWithoutATag) {
    LogCapture log;
    EXPECT_EQ(TarnLog(TARN_LOG_FATAL, nullptr, "f", 1, "text"), -1);
    EXPECT_TRUE(log.lines().empty());
}

TEST(TarnLog, HandsOverPriorityTagFunctionAndLine) {
    const LogLine line = writtenAt(TARN_LOG_DEBUG);
    EXPECT_EQ(line.priority, ANDROID_LOG_DEBUG);
    EXPECT_EQ(line.tag, "tag");
    EXPECT_EQ(line.function, "function");
    EXPECT_EQ(line.line, 12);
    EXPECT_EQ(line.text, "[function:12] text 5");
}

TEST(TarnLog, LeavesTheLowLevelsUncoloured) {
    EXPECT_EQ(writtenAt(TARN_LOG_UNKNOWN).text, "[function:12] text 5");
    EXPECT_EQ(writtenAt(TARN_LOG_DEFAULT).text, "[function:12] text 5");
    EXPECT_EQ(writtenAt(TARN_LOG_VERBOSE).text, "[function:12] text 5");
    EXPECT_EQ(writtenAt(TARN_LOG_DEFAULT).priority, 1);
    EXPECT_EQ(writtenAt(TARN_LOG_VERBOSE).priority, 2);
}

TEST(TarnLog, ColoursByLevel) {
    EXPECT_EQ(writtenAt(TARN_LOG_INFO).text, "\x1b[36m[function:12] text 5\x1b[0m");
    EXPECT_EQ(writtenAt(TARN_LOG_WARN).text, "\x1b[35m[function:12] text 5\x1b[0m");
    EXPECT_EQ(writtenAt(TARN_LOG_ERROR).text, "\x1b[31m[function:12] text 5\x1b[0m");
    EXPECT_EQ(writtenAt(TARN_LOG_FATAL).text, "\x1b[31m[function:12] text 5\x1b[0m");
    EXPECT_EQ(writtenAt(TARN_LOG_INFO).priority, 4);
    EXPECT_EQ(writtenAt(TARN_LOG_FATAL).priority, 7);
}

TEST(TarnLog, WritesLevelsOutOfRangeWithPriorityZeroAndNoColour) {
    for (const unsigned int level : {0u, 8u, 0xffffffffu}) {
        const LogLine line = writtenAt(level);
        EXPECT_EQ(line.priority, 0) << level;
        EXPECT_EQ(line.text, "[function:12] text 5") << level;
    }
}

TEST(TarnLog, PassesALevelAboveFatalThroughEveryFilter) {
    FilterLevel filter(TARN_LOG_FATAL);
    EXPECT_EQ(TarnLog(8, "tag", "f", 1, "text"), 0);
    EXPECT_EQ(TarnLog(TARN_LOG_ERROR, "tag", "f", 1, "text"), -1);
}

TEST(TarnLog, CutsAMessageAfter1023Characters) {
    for (const size_t length : {1022, 1023, 1024, 3000}) {
        LogCapture log;
        const std::string text(length, 'x');
        EXPECT_EQ(TarnLog(TARN_LOG_DEBUG, "tag", "f", 1, "%s", text.c_str()), 0);
        ASSERT_EQ(log.lines().size(), 1u);
        EXPECT_EQ(log.lines()[0].message, std::string(length == 1022 ? 1022 : 1023, 'x'));
    }
}

int writeAnyFormat(const char* format) {
    // Called through a plain pointer: the compiler checks no format.
    int (*const log)(unsigned int, const char*, const char*, int, const char*, ...) = TarnLog;
    return log(TARN_LOG_DEBUG, "tag", "f", 1, format);
}

TEST(TarnLog, SurvivesNullTexts) {
    LogCapture log;
    const char* none = nullptr;
    EXPECT_EQ(TarnLog(TARN_LOG_DEBUG, "tag", nullptr, 1, "%s", none), 0);
    EXPECT_EQ(writeAnyFormat(none), 0);
    EXPECT_EQ(log.lines()[0].text, "[(null):1] (null)");
    EXPECT_EQ(log.lines()[1].text, "[f:1] ");
}

TEST(TarnLogLevel, IsKeptInTheProperty) {
    FilterLevel filter(TARN_LOG_VERBOSE);
    EXPECT_EQ(getLogLevel(2), TARN_LOG_VERBOSE);
    EXPECT_EQ(property(), "TARN_LOG_VERBOSE");
}

TEST(TarnLogLevel, HasANameForEachOfTheEight) {
    const char* names[] = {"TARN_LOG_UNKNOWN", "TARN_LOG_DEFAULT", "TARN_LOG_VERBOSE",
                           "TARN_LOG_DEBUG",   "TARN_LOG_INFO",    "TARN_LOG_WARN",
                           "TARN_LOG_ERROR",   "TARN_LOG_FATAL"};
    for (unsigned int level = 0; level <= TARN_LOG_FATAL; level++) {
        EXPECT_EQ(setLogLevel(level), 0);
        EXPECT_EQ(property(), names[level]);
        setLogLevel(TARN_LOG_WARN);
        property_set(kProperty, names[level]);
        Tarn_Log_Init();
        EXPECT_EQ(getLogLevel(2), static_cast<int>(level));
    }
    setLogLevel(TARN_LOG_WARN);
}

TEST(TarnLogLevel, RefusesWhatIsOutOfRangeAndChangesNothing) {
    FilterLevel filter(TARN_LOG_INFO);
    EXPECT_EQ(setLogLevel(8), -1);
    EXPECT_EQ(setLogLevel(static_cast<unsigned int>(-1)), -1);
    EXPECT_EQ(getLogLevel(2), TARN_LOG_INFO);
    EXPECT_EQ(property(), "TARN_LOG_INFO");
}

TEST(TarnLogLevel, AnswersForTheDefaultAndTheCurrentLevelOnly) {
    FilterLevel filter(TARN_LOG_VERBOSE);
    EXPECT_EQ(getLogLevel(1), TARN_LOG_WARN);
    EXPECT_EQ(getLogLevel(0), -1);
    EXPECT_EQ(getLogLevel(3), -1);
}

TEST(TarnLogInit, IsNotCalledByTheLibraryItself) {
    // The child is a process started afresh, with the property set already.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    property_set(kProperty, "TARN_LOG_VERBOSE");
    EXPECT_EXIT(exit(getLogLevel(2)), testing::ExitedWithCode(TARN_LOG_WARN), "");
    setLogLevel(TARN_LOG_WARN);
}

TEST(TarnLogInit, LetsVerboseThroughWhenTheDeviceAsksForIt) {
    property_set(kProperty, "TARN_LOG_VERBOSE");
    Tarn_Log_Init();
    EXPECT_EQ(TarnLog(TARN_LOG_VERBOSE, "tag", "f", 1, "text"), 0);
    EXPECT_EQ(TarnLog(TARN_LOG_DEFAULT, "tag", "f", 1, "text"), -1);
    setLogLevel(TARN_LOG_WARN);
}

TEST(TarnLogInit, LeavesTheDefaultForUnknownTexts) {
    for (const char* text : {"tarn_log_debug", "TARN_LOG_BUTT", "3", "TARN_LOG_DEBUG ", ""}) {
        setLogLevel(TARN_LOG_FATAL);
        property_set(kProperty, text);
        Tarn_Log_Init();
        EXPECT_EQ(getLogLevel(2), TARN_LOG_WARN) << text;
    }
}

}  // namespace
