#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tarn::test {

/** One call of TarnLog. */
struct LogCall {
    unsigned int level;
    std::optional<std::string> tag;  // none: a null tag
    std::string function;
    int line;
    std::string message;
};

/**
 * The calls of TarnLog in this program, filtered or not; clear it before a test. The program that
 * links it has a TarnLog of its own, which stands before the library's: a line without a tag
 * leaves no other trace.
 */
std::vector<LogCall>& logCalls();

}  // namespace tarn::test
