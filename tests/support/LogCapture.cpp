#include "tests/support/LogCapture.h"

#include <android/log.h>
#include <tarn/TarnLog.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <regex>

namespace tarn::test {

namespace {

std::mutex gLock;
bool gCapturing = false;
std::vector<LogLine> gLines;

LogLine takeApart(int priority, const char* tag, const std::string& text) {
    static const std::regex kShape("(?:\x1b\\[3\\dm)?\\[([^:\\]]*):(-?\\d+)\\] ([^\x1b]*)(?:\x1b\\[0m)?");
    LogLine line{priority, tag, text, "", 0, text};
    std::smatch match;
    if (std::regex_match(text, match, kShape)) {
        line.function = match[1];
        line.line = atoi(match[2].str().c_str());
        line.message = match[3];
    }
    return line;
}

}  // namespace

LogCapture::LogCapture() : mOldLevel(getLogLevel(2)) {
    setLogLevel(TARN_LOG_UNKNOWN);
    std::lock_guard<std::mutex> guard(gLock);
    gLines.clear();
    gCapturing = true;
}

LogCapture::~LogCapture() {
    setLogLevel(static_cast<unsigned int>(mOldLevel));
    std::lock_guard<std::mutex> guard(gLock);
    gCapturing = false;
}

std::vector<LogLine> LogCapture::lines() const {
    std::lock_guard<std::mutex> guard(gLock);
    return gLines;
}

std::vector<std::string> LogCapture::messages() const {
    std::vector<std::string> messages;
    for (const LogLine& line : lines()) messages.push_back(line.message);
    return messages;
}

void LogCapture::clear() {
    std::lock_guard<std::mutex> guard(gLock);
    gLines.clear();
}

}  // namespace tarn::test

extern "C" int __android_log_print(int priority, const char* tag, const char* format, ...) {
    char text[4096];
    va_list args;
    va_start(args, format);
    const int length = vsnprintf(text, sizeof(text), format, args);
    va_end(args);

    std::lock_guard<std::mutex> guard(tarn::test::gLock);
    if (tarn::test::gCapturing) {
        tarn::test::gLines.push_back(
                tarn::test::takeApart(priority, tag != nullptr ? tag : "", text));
    }
    return length;
}
