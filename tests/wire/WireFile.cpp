#include "tests/wire/WireFile.h"

#include <json/reader.h>

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

    std::vector<WireCase> read() {
        std::string line;
        while (std::getline(mFile, line)) {
            mLine++;
            if (line.empty() || line[0] == '#') continue;
            switch (line[0]) {
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
        return mCases;
    }

  private:
    void readCall(const std::string& line) {
        if (mPending) fail("the case above has no result");
        mCall = WireCase();
        mCall.line = mLine;
        std::vector<std::string> parts = splitWords(line);
        mCall.method = parts.front();
        mCall.arguments.assign(parts.begin() + 1, parts.end());
        mExchanges.clear();
        mRequest.reset();
    }

    void readRequest(const std::string& text) {
        if (!mPending) mExchanges.clear();
        mRequest = bytes(text);
        mPending = true;
    }

    void readReply(const std::string& text) {
        if (!mRequest) fail("a reply without a request above it");
        const size_t equals = text.find('=');
        mExchanges.push_back(Exchange{*mRequest, bytes(text.substr(0, equals))});
        if (equals == std::string::npos) return;
        finishCase(text.substr(equals + 1));
        // Further replies to the same single request may follow.
        mExchanges.clear();
    }

    void finishCase(const std::string& result) {
        WireCase wireCase = mCall;
        wireCase.line = mLine;
        wireCase.exchanges = mExchanges;
        Json::CharReaderBuilder builder;
        const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
        std::string error;
        const char* text = result.data();
        if (!reader->parse(text, text + result.size(), &wireCase.result, &error)) {
            fail("the result is not JSON: " + error);
        }
        mCases.push_back(wireCase);
        mPending = false;
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
    WireCase mCall;
    std::optional<std::vector<uint8_t>> mRequest;
    std::vector<Exchange> mExchanges;
    bool mPending = false;
    std::vector<WireCase> mCases;
};

}  // namespace

std::vector<WireCase> readWireFile(const std::string& path) {
    return WireReader(path).read();
}

}  // namespace tarn::test
