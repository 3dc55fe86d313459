#pragma once

#include <gmock/gmock.h>

#include <ostream>
#include <string>

#include "tests/support/LogCapture.h"

namespace tarn::test {

inline void PrintTo(const LogLine& line, std::ostream* out) {
    *out << line.priority << ' ' << line.tag << " [" << line.function << ':' << line.line << "] "
         << testing::PrintToString(line.message);
}

/** A line of that priority, tag, function and message, written from some source line. */
MATCHER_P4(Logged, priority, tag, function, message, "") {
    return arg.priority == priority && arg.tag == tag && arg.function == function &&
           arg.message == message && arg.line > 0;
}

}  // namespace tarn::test
