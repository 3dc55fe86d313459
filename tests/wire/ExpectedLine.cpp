#include "tests/wire/ExpectedLine.h"

namespace tarn::test {

namespace {

bool matches(const ExpectedLine& expected, const LoggedLine& logged) {
    const LogCall& call = logged.call;
    return call.level == expected.level && call.tag == expected.tag &&
           call.function == expected.function &&
           (expected.line == 0 ? call.line > 0 : call.line == expected.line) &&
           call.message == expected.message && logged.commandsBefore == expected.commandsBefore;
}

std::string describe(unsigned int level, const std::optional<std::string>& tag,
                     const std::string& function, int line, const std::string& message,
                     size_t commandsBefore) {
    std::string text = "level " + std::to_string(level) + ", " + tag.value_or("null tag") + ", " +
                       function + ":" + (line == 0 ? "any" : std::to_string(line)) + ", \"";
    for (const char c : message) text += c == '\n' ? std::string("\\n") : std::string(1, c);
    return text + "\" after " + std::to_string(commandsBefore) + " commands";
}

std::string describe(const ExpectedLine& line) {
    return describe(line.level, line.tag, line.function, line.line, line.message,
                    line.commandsBefore);
}

std::string describe(const LoggedLine& line) {
    return describe(line.call.level, line.call.tag, line.call.function, line.call.line,
                    line.call.message, line.commandsBefore);
}

}  // namespace

std::string compareLog(const std::vector<ExpectedLine>& expected,
                       const std::vector<LoggedLine>& logged) {
    for (size_t i = 0; i < expected.size() || i < logged.size(); i++) {
        if (i >= logged.size()) return "did not log " + describe(expected[i]);
        if (i >= expected.size()) return "logged " + describe(logged[i]);
        if (!matches(expected[i], logged[i])) {
            return "logged " + describe(logged[i]) + " instead of " + describe(expected[i]);
        }
    }
    return "";
}

}  // namespace tarn::test
