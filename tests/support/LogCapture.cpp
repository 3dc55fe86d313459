#include "tests/support/LogCapture.h"

#include <android/log.h>
#include <tarn/TarnLog.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>

namespace tarn::test {

namespace {

std::mutex gLock;
bool gCapturing = false;
std::vector<LogLine> gLines;
size_t gPlatformLines = 0;

/** What is between the colour codes, or the whole text where there are none. */
std::string withoutColour(const std::string& text) {
    if (text.empty() || text[0] != '\x1b') return text;
    const size_t start = text.find('m') + 1;
    return text.substr(start, text.rfind('\x1b') - start);
}

LogLine takeApart(int priority, const char* tag, const std::string& text) {
    LogLine line{priority, tag, text, "", 0, text};
    const std::string plain = withoutColour(text);
    const size_t colon = plain.find(':');
    const size_t bracket = plain.find("] ", colon);
    if (plain.empty() || plain[0] != '[' || bracket == std::string::npos) return line;
    line.function = plain.substr(1, colon - 1);
    line.line = atoi(plain.c_str() + colon + 1);
    line.message = plain.substr(bracket + 2);
    return line;
}

}  // namespace

LogCapture::LogCapture() : mOldLevel(getLogLevel(2)) {
    setLogLevel(TARN_LOG_UNKNOWN);
    std::lock_guard<std::mutex> guard(gLock);
    gLines.clear();
    gPlatformLines = 0;
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

size_t LogCapture::platformLines() const {
    std::lock_guard<std::mutex> guard(gLock);
    return gPlatformLines;
}

void LogCapture::clear() {
    std::lock_guard<std::mutex> guard(gLock);
    gLines.clear();
    gPlatformLines = 0;
}

}  // namespace tarn::test

extern "C" int __android_log_print(int priority, const char* tag, const char* format, ...) {
    char text[4096];
    va_list args;
    va_start(args, format);
    const int length = vsnprintf(text, sizeof(text), format, args);
    va_end(args);

    // The platform's own libraries log through here too; theirs is not the library's shape.
    const bool ours = strstr(format, "[%s:%d] %s") != nullptr;
    std::lock_guard<std::mutex> guard(tarn::test::gLock);
    if (!ours) tarn::test::gPlatformLines++;
    if (ours && tarn::test::gCapturing) {
        tarn::test::gLines.push_back(
                tarn::test::takeApart(priority, tag != nullptr ? tag : "", text));
    }
    return length;
}
