#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace tarn::test {

/** One call of TarnLog. */
struct LogCall {
    unsigned int level;
    bool hasTag;
    std::string function;
    int line;
    std::string message;
};

inline bool operator==(const LogCall& a, const LogCall& b) {
    return a.level == b.level && a.hasTag == b.hasTag && a.function == b.function &&
           a.line == b.line && a.message == b.message;
}

inline void PrintTo(const LogCall& call, std::ostream* out) {
    *out << call.level << (call.hasTag ? " tagged" : " untagged") << " [" << call.function << ":"
         << call.line << "] " << call.message;
}

/**
 * The calls of TarnLog in this program, filtered or not; clear it before a test. The program that
 * links it has a TarnLog of its own, which stands before the library's: a line without a tag
 * leaves no other trace.
 */
std::vector<LogCall>& logCalls();

}  // namespace tarn::test
