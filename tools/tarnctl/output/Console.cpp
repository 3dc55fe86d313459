#include "tools/tarnctl/output/Console.h"

#include <cerrno>
#include <cstring>
#include <sstream>

#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/output/Format.h"

namespace tarnctl {

void Output::result(const Json::Value& value) {
    lines(isJson() ? std::vector<std::string>{jsonText(value, mStyle)} : plainLines(value));
}

void Output::report(const Report& report) {
    Json::Value object(Json::objectValue);
    std::vector<std::string> text;
    for (const auto& [name, value] : report) {
        object[name] = value;
        // One at a time, since an object would put them into the order of their names.
        Json::Value single(Json::objectValue);
        single[name] = value;
        for (const std::string& line : plainLines(single)) text.push_back(line);
    }
    if (isJson()) {
        result(object);
    } else {
        lines(text);
    }
}

void Output::lines(const std::vector<std::string>& lines) {
    errno = 0;
    for (const std::string& line : lines) mStream << line << '\n';
    if (mStream.flush()) return;
    const std::string reason = errno != 0 ? std::string(": ") + strerror(errno) : "";
    throw Failure(kCantWrite, "can't write the results" + reason);
}

void Diagnostics::note(const std::string& message) const {
    if (!mQuiet) requested(message);
}

void Diagnostics::requested(const std::string& message) const {
    std::istringstream lines(message);
    for (std::string line; std::getline(lines, line);) {
        mStream << "tarnctl: " << mPlace << line << '\n';
    }
    mStream.flush();
}

}  // namespace tarnctl
