#include "tools/tarnctl/options/LineWords.h"

#include "tools/tarnctl/output/Failure.h"

namespace tarnctl {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

class Splitter {
  public:
    explicit Splitter(const std::string& line) : mLine(line) {}

    std::vector<std::string> split() {
        std::vector<std::string> words;
        for (skipBlanks(); mPos < mLine.size() && mLine[mPos] != '#'; skipBlanks()) {
            words.push_back(word());
        }
        return words;
    }

  private:
    void skipBlanks() {
        while (mPos < mLine.size() && isBlank(mLine[mPos])) mPos++;
    }

    std::string word() {
        std::string text;
        while (mPos < mLine.size() && !isBlank(mLine[mPos])) {
            const char c = mLine[mPos++];
            if (c == '\'' || c == '"') {
                text += quoted(c);
            } else if (c == '\\') {
                text += escaped();
            } else {
                text += c;
            }
        }
        return text;
    }

    char escaped() {
        if (mPos == mLine.size()) {
            throw Failure(kBadUsage, "a \\ ends the line; a command stands on one line");
        }
        return mLine[mPos++];
    }

    std::string quoted(char quote) {
        std::string text;
        while (mPos < mLine.size()) {
            const char c = mLine[mPos++];
            if (c == quote) return text;
            const bool escapes = quote == '"' && c == '\\' && mPos < mLine.size() &&
                                 (mLine[mPos] == '"' || mLine[mPos] == '\\');
            text += escapes ? mLine[mPos++] : c;
        }
        throw Failure(kBadUsage, std::string("a ") + quote + " is not closed");
    }

    const std::string& mLine;
    size_t mPos = 0;
};

}  // namespace

std::vector<std::string> splitWords(const std::string& line) {
    if (line.find('\0') != std::string::npos)
        throw Failure(kBadUsage, "a line can't have a NUL byte");
    return Splitter(line).split();
}

}  // namespace tarnctl
