#include <android/log.h>
#include <cutils/properties.h>
#include <tarn/TarnLog.h>

#include <atomic>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace {

const char PROP_TARN_SER_LOG_LEVEL[] = "persist.vendor.tarn.loglevel";
const char kNeverSet[] = "TARN_LOG_BUTT";

const char* const kLevelNames[] = {
        "TARN_LOG_UNKNOWN", "TARN_LOG_DEFAULT", "TARN_LOG_VERBOSE", "TARN_LOG_DEBUG",
        "TARN_LOG_INFO",    "TARN_LOG_WARN",    "TARN_LOG_ERROR",   "TARN_LOG_FATAL",
};

constexpr uint32_t kDefaultLevel = TARN_LOG_WARN;

// Read by every call on any thread; no other memory hangs on its value.
std::atomic<uint32_t> gCurrentLevel{kDefaultLevel};

constexpr size_t kMessageSize = 1024;

void writeLine(int priority, const char* tag, const char* function, int line, const char* message) {
    switch (priority) {
        case TARN_LOG_INFO:
            __android_log_print(priority, tag, "\x1b[36m[%s:%d] %s\x1b[0m", function, line,
                                message);
            break;
        case TARN_LOG_WARN:
            __android_log_print(priority, tag, "\x1b[35m[%s:%d] %s\x1b[0m", function, line,
                                message);
            break;
        case TARN_LOG_ERROR:
        case TARN_LOG_FATAL:
            __android_log_print(priority, tag, "\x1b[31m[%s:%d] %s\x1b[0m", function, line,
                                message);
            break;
        default:
            __android_log_print(priority, tag, "[%s:%d] %s", function, line, message);
            break;
    }
}

}  // namespace

void Tarn_Log_Init(void) {
    uint32_t level = kDefaultLevel;
    char value[256] = {};
    property_get(PROP_TARN_SER_LOG_LEVEL, value, kNeverSet);
    for (uint32_t i = 0; i < TARN_LOG_BUTT; i++) {
        if (strcmp(value, kLevelNames[i]) == 0) level = i;
    }
    gCurrentLevel.store(level, std::memory_order_relaxed);
}

int TarnLog(unsigned int level, const char* tag, const char* function, int line, const char* format,
            ...) {
    if (tag == nullptr) return -1;
    if (level < gCurrentLevel.load(std::memory_order_relaxed)) return -1;

    char message[kMessageSize] = {};
    if (format != nullptr) {
        va_list args;
        va_start(args, format);
        vsnprintf(message, sizeof(message), format, args);
        va_end(args);
    }
    const int priority = level <= TARN_LOG_FATAL ? static_cast<int>(level) : TARN_LOG_UNKNOWN;
    writeLine(priority, tag, function != nullptr ? function : "(null)", line, message);
    return 0;
}

int setLogLevel(unsigned int level) {
    if (level > TARN_LOG_FATAL) return -1;
    gCurrentLevel.store(level, std::memory_order_relaxed);

    char value[PROPERTY_VALUE_MAX] = {};
    snprintf(value, sizeof(value), "%s", kLevelNames[level]);
    property_set(PROP_TARN_SER_LOG_LEVEL, value);
    return 0;
}

int getLogLevel(int which) {
    switch (which) {
        case 1:
            return static_cast<int>(kDefaultLevel);
        case 2:
            return static_cast<int>(gCurrentLevel.load(std::memory_order_relaxed));
        default:
            return -1;
    }
}
