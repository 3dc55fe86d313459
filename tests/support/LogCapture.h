#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarn::test {

/** One line that the library handed to the Android log, taken apart. */
struct LogLine {
    int priority;
    std::string tag;
    std::string text;      // the whole line, colour codes included
    std::string function;  // from "[function:line] message"
    int line;
    std::string message;
};

/**
 * Collects what the library writes to the log while it lives, with the filter wide open.
 * The program that links it defines __android_log_print. One at a time.
 */
class LogCapture {
  public:
    LogCapture();
    ~LogCapture();

    std::vector<LogLine> lines() const;

    /** The messages alone, in order. */
    std::vector<std::string> messages() const;

    /** How many lines the platform's own libraries wrote; their texts are not kept. */
    size_t platformLines() const;

    /** Forgets what came so far. */
    void clear();

  private:
    int mOldLevel;
};

}  // namespace tarn::test
