#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/LogCalls.h"

namespace tarn::test {

/** A line that must be logged, and when. */
struct ExpectedLine {
    unsigned int level;
    std::optional<std::string> tag;  // none: a null tag
    std::string function;
    int line;  // 0 where any will do
    std::string message;
    size_t commandsBefore;  // how many commands the call has sent by then
};

/** A call of TarnLog, and how many commands had been sent by then. */
struct LoggedLine {
    LogCall call;
    size_t commandsBefore;
};

/** What is wrong with the lines that were logged; empty when they are the expected ones. */
std::string compareLog(const std::vector<ExpectedLine>& expected,
                       const std::vector<LoggedLine>& logged);

}  // namespace tarn::test
