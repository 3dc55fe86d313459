#include "tests/wire/WireFile.h"

#include <json/reader.h>
#include <tarn/TarnLog.h>

#include <fstream>
#include <memory>
#include <optional>
#include <stdexcept>

namespace tarn::test {

namespace {

class WireReader {
  public:
    explicit WireReader(const std::string& path) : mPath(path), mFile(path) {
        if (!mFile) throw std::runtime_error("can't read " + path);
    }

    WireFile read() {
        std::string line;
        while (nextLine(&line)) {
            if (line.empty() || line[0] == '#') continue;
            switch (line[0]) {
                case '@':
                    readTag(line.substr(1));
                    break;
                case '!':
                    readLog(line.substr(1));
                    break;
                case '>':
                    readRequest(line.substr(1));
                    break;
                case '<':
                    readReply(line.substr(1));
                    break;
                case '=':
                    finishCase(line.substr(1));
                    break;
                default:
                    readCall(line);
            }
        }
        if (mPending) fail("the last case has no result");
        return mContents;
    }

  private:
    /** A line with the indented ones below, which continue it. */
    bool nextLine(std::string* line) {
        mLine += mContinuations + 1;
        mContinuations = 0;
        if (!std::getline(mFile, *line)) return false;
        while (mFile.peek() == ' ') {
            std::string more;
            std::getline(mFile, more);
            mContinuations++;
            const size_t start = more.find_first_not_of(' ');
            if (start != std::string::npos) *line += ' ' + more.substr(start);
        }
        return true;
    }

    void readTag(const std::string& text) {
        const Json::Value tag = parse(text);
        mTagGiven = true;
        mTag.reset();
        if (!tag.isNull()) mTag = tag.asString();
    }

    /** "D" or "D:34", the function where it is not the method of that name, the message. */
    void readLog(const std::string& text) {
        static const std::string kLevels = "VDIWEF";
        const size_t quote = text.find('"');
        if (quote == std::string::npos) fail("a log line without a message");
        const std::vector<std::string> words = splitWords(text.substr(0, quote));
        if (words.empty() || words.size() > 2) fail("not a level and a function");
        const size_t level = kLevels.find(words[0][0]);
        if (level == std::string::npos) fail("a log line of no known level");
        ExpectedLine line{};
        line.level = TARN_LOG_VERBOSE + static_cast<unsigned int>(level);
        line.tag = mTag;
        line.function = words.size() == 2 ? words[1] : mCall.method;
        if (words[0].size() > 1) line.line = lineNumber(words[0].substr(1));
        line.message = parse(text.substr(quote)).asString();
        addLog(line);
    }

    int lineNumber(const std::string& text) {
        if (text.size() < 2 || text[0] != ':' ||
            text.find_first_not_of("0123456789", 1) != std::string::npos) {
            fail("not a source line: " + text);
        }
        return std::stoi(text.substr(1));
    }

    /** Where the line stands tells when it is logged. */
    void addLog(ExpectedLine line) {
        if (!mTagGiven) fail("a log line without a tag above it");
        if (mCall.method.empty()) {
            line.function = mPath.substr(mPath.rfind('/') + 1);
            line.function.resize(line.function.rfind('.'));
            mContents.logOfCreation.push_back(line);
        } else if (!mCallStarted) {
            mCall.log.push_back(line);
        } else if (!mPending) {
            WireCase& last = mContents.cases.back();
            line.commandsBefore = last.commands.size();
            last.log.push_back(line);
        } else {
            fail("a log line within a case; it stands above the first request or below a result");
        }
    }

    void readCall(const std::string& line) {
        if (mPending) fail("the case above has no result");
        mCall = WireCase();
        mCall.line = mLine;
        std::vector<std::string> parts = splitWords(line);
        mCall.method = parts.front();
        mCall.arguments.assign(parts.begin() + 1, parts.end());
        mCallStarted = false;
        mCommands.clear();
        mRequest.reset();
    }

    void readRequest(const std::string& text) {
        if (!mPending) mCommands.clear();
        mRequest = bytes(text);
        mPending = true;
        mCallStarted = true;
    }

    void readReply(const std::string& text) {
        if (!mRequest) fail("a reply without a request above it");
        const size_t equals = text.find('=');
        mCommands.push_back(WireCommand{*mRequest, bytes(text.substr(0, equals))});
        if (equals == std::string::npos) return;
        finishCase(text.substr(equals + 1));
        // Further replies to the same single request may follow.
        mCommands.clear();
    }

    void finishCase(const std::string& result) {
        WireCase wireCase = mCall;
        wireCase.line = mLine;
        wireCase.commands = mCommands;
        wireCase.result = parse(result);
        mContents.cases.push_back(wireCase);
        mPending = false;
        mCallStarted = true;
    }

    Json::Value parse(const std::string& text) {
        Json::CharReaderBuilder builder;
        builder["failIfExtra"] = true;
        const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
        Json::Value value;
        std::string error;
        if (!reader->parse(text.data(), text.data() + text.size(), &value, &error)) {
            fail("not JSON: " + error);
        }
        return value;
    }

    std::vector<std::string> splitWords(const std::string& line) {
        std::vector<std::string> parts;
        for (size_t i = 0; i < line.size();) {
            if (line[i] == ' ') {
                i++;
                continue;
            }
            const bool quoted = line[i] == '"';
            const size_t start = quoted ? i + 1 : i;
            size_t end = line.find(quoted ? '"' : ' ', start);
            if (quoted && end == std::string::npos) fail("missing \"");
            if (end == std::string::npos) end = line.size();
            parts.push_back(line.substr(start, end - start));
            i = quoted ? end + 1 : end;
        }
        return parts;
    }

    std::vector<uint8_t> bytes(const std::string& text) {
        std::string digits;
        for (const char c : text) {
            if (c != ' ') digits += c;
        }
        if (digits.size() % 2 != 0 ||
            digits.find_first_not_of("0123456789abcdef") != std::string::npos) {
            fail("not pairs of lower-case hexadecimal digits: " + text);
        }
        std::vector<uint8_t> result;
        for (size_t i = 0; i < digits.size(); i += 2) {
            result.push_back(static_cast<uint8_t>(std::stoi(digits.substr(i, 2), nullptr, 16)));
        }
        return result;
    }

    [[noreturn]] void fail(const std::string& what) const {
        throw std::runtime_error(mPath + ":" + std::to_string(mLine) + ": " + what);
    }

    std::string mPath;
    std::ifstream mFile;
    int mLine = 0;
    int mContinuations = 0;
    std::optional<std::string> mTag;
    bool mTagGiven = false;
    WireCase mCall;
    bool mCallStarted = false;  // a request or a result of it has been read
    std::optional<std::vector<uint8_t>> mRequest;
    std::vector<WireCommand> mCommands;
    bool mPending = false;
    WireFile mContents;
};

}  // namespace

WireFile readWireFile(const std::string& path) {
    return WireReader(path).read();
}

}  // namespace tarn::test
