#include "tests/support/LogCalls.h"

#include <tarn/TarnLog.h>

#include <cstdarg>
#include <cstdio>

namespace tarn::test {

std::vector<LogCall>& logCalls() {
    static std::vector<LogCall> calls;
    return calls;
}

}  // namespace tarn::test

int TarnLog(unsigned int level, const char* tag, const char* function, int line, const char* format,
            ...) {
    char message[1024];
    va_list args;
    va_start(args, format);
    vsnprintf(message, sizeof(message), format, args);
    va_end(args);
    std::optional<std::string> givenTag;
    if (tag != nullptr) givenTag = tag;
    tarn::test::logCalls().push_back({level, givenTag, function, line, message});
    return tag == nullptr ? -1 : 0;
}
